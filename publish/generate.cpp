#include "publish/generate.h"

#include "core/settings.h"
#include "generator/categories.h"
#include "generator/choices.h"
#include "generator/datalist.h"
#include "generator/emphasis.h"
#include "generator/fieldvalues.h"
#include "generator/finish.h"
#include "generator/generation.h"
#include "generator/productpages.h"
#include "generator/sitefiles.h"
#include "generator/zonepages.h"
#include "generator/zones.h"
#include "pictures/productpictures.h"
#include "platform/events.h"
#include "publish/delivery.h"
#include "site/abort.h"
#include "site/outputs.h"
#include "site/steps.h"
#include "site/styles.h"
#include "site/template.h"
#include "site/weblangs.h"

#include <QFileInfo>
#include <QScopedValueRollback>

namespace {

// A site or a page is being made: the files in memory are its own, and so is the user's cancel.
bool generating = false;

// All files of the site. The order counts: words, zones and choices exist before the pages that the
// finishing pass puts them into, and the blocks come after the product pages, which find the zones.
void ExpandSite(SiteSnapshot& snapshot, bool changedOnly) {
    LoadLanguageStrings();
    LoadStyles();
    IndexImageSections();
    PrepareNoPictureImages();
    SetOverallProgress(0);
    CopyTemplateFiles();
    BuildZoneList(snapshot);
    SetOverallProgress(1);
    BuildChoiceLists(snapshot);
    CopyIndexPages();
    CopyLanguagePages();
    BuildFixedPages();
    BuildProductPages({}, 0, changedOnly, snapshot);
    SetOverallProgress(2);
    BuildProductDataList(snapshot);
    BuildEmphasisBlocks(snapshot);
    AddCompanyLogos();
    BuildZonePages(snapshot);
    BuildZoneLinks();
    BuildCategoryTrees(snapshot);
}

QString ExpandProductPreview(const QString& productId, int marker, SiteSnapshot& snapshot) {
    IndexImageSections();
    BuildEmphasisBlocks(snapshot);
    LoadStyles();
    BuildCategoryTrees(snapshot);
    CopyTemplateFiles();
    BuildZoneList(snapshot);
    AddCompanyLogos();
    QString page = BuildProductPages(productId, marker, false, snapshot);
    BuildZonePages(snapshot);
    BuildZoneLinks();
    return page;
}

QString ExpandFixedPreview(SectionKind kind, SiteSnapshot& snapshot) {
    IndexImageSections();
    CopyTemplateFiles();
    LoadStyles();
    BuildCategoryTrees(snapshot);
    BuildZoneList(snapshot);
    BuildEmphasisBlocks(snapshot);
    AddCompanyLogos();
    BuildZonePages(snapshot);
    BuildZoneLinks();
    return BuildFixedPages(kind);
}

QString ExpandPreview(const PreviewRequest& request, SiteSnapshot& snapshot) {
    switch (request.page) {
    case PreviewPage::Product:
        return ExpandProductPreview(request.productId, 0, snapshot);
    case PreviewPage::Layout:
        return ExpandProductPreview(request.productId, kLayoutMarker, snapshot);
    case PreviewPage::FindUs:
        return ExpandFixedPreview(kKindFindUs, snapshot);
    case PreviewPage::AboutUs:
        return ExpandFixedPreview(kKindAboutUs, snapshot);
    }
    return {};
}

} // namespace

bool GenerateSite(const QString& templatePath, SiteSnapshot& snapshot, bool changedOnly) {
    if (generating || templatePath.isEmpty() || !QFileInfo(templatePath).isFile()) {
        return false;
    }
    const QScopedValueRollback<bool> run(generating, true);
    SetAbortPublish(false);
    ResetSteps();
    StartSteps();
    ServeEvents();

    ResetGeneration();
    if (!LoadTemplateFile(templatePath)) {
        StepFailed();
        return false;
    }
    if (!AbortPublish) {
        ExpandSite(snapshot, changedOnly);
    }
    if (!AbortPublish) {
        NextStep();
        CopyCustomFiles();
        FinishSite(snapshot);
        SetOverallProgress(3);
    }
    if (AbortPublish) {
        return false;
    }
    NextStep();
    return DeliverSite(snapshot);
}

QString GeneratePreviewPage(const PreviewRequest& request, const QString& templatePath,
                            SiteSnapshot& snapshot) {
    if (generating) {
        return {};
    }
    const QScopedValueRollback<bool> run(generating, true);
    const InputHold hold;
    SetAbortPublish(false);
    ResetGeneration();
    if (!LoadTemplateFile(templatePath)) {
        return {};
    }
    LoadLanguageStrings();
    BuildChoiceLists(snapshot);
    const QString page = ExpandPreview(request, snapshot);
    FinishSite(snapshot);
    const QString folder = DBpath + "temp/";
    if (page.isEmpty() || !SaveOutputFiles(folder)) {
        return {};
    }
    return folder + page;
}
