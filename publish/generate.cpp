#include "publish/generate.h"

#include "core/settings.h"
#include "forms/mainform.h"
#include "generator/categories.h"
#include "generator/choices.h"
#include "generator/datalist.h"
#include "generator/emphasis.h"
#include "generator/fieldvalues.h"
#include "generator/finish.h"
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
#include "site/transforms.h"
#include "site/weblangs.h"

#include <QFileInfo>
#include <QScopeGuard>

namespace {

constexpr int kOptionChanged = 0; // "Actualizar el contenido modificado"
constexpr int kAllTasks = 1;      // the overall bar
constexpr int kTaskRange = 10;    // its range

constexpr int kRequestKind = 1; // fields of a preview request, from 1
constexpr int kRequestProduct = 2;

void ShowOverall(int value) {
    SetProgress(value, kTaskRange, 0, kAllTasks);
}

// Whatever an earlier generation has left in memory.
void ResetGeneration() {
    ResetActiveFieldDefs();
    ResetWebLangs();
    ResetStyles();
    ResetZones();
    ResetChoices();
    ResetEmphasis();
    ResetZonePages();
}

// All files of the site. The order counts: words, zones and choices exist before the pages that the
// finishing pass puts them into, and the blocks come after the product pages, which find the zones.
void ExpandSite(SiteSnapshot& snapshot) {
    LoadLanguageStrings();
    LoadStyles();
    IndexImageSections();
    PrepareNoPictureImages();
    ShowOverall(0);
    CopyTemplateFiles();
    BuildZoneList(snapshot);
    ShowOverall(1);
    BuildChoiceLists(snapshot);
    CopyIndexPages();
    CopyLanguagePages();
    BuildFixedPages({});
    const bool changedOnly = frmMain->optAllOrChanged[kOptionChanged]->isChecked();
    BuildProductPages({}, 0, changedOnly, snapshot);
    ShowOverall(2);
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

QString ExpandFixedPreview(const QString& pageName, SiteSnapshot& snapshot) {
    IndexImageSections();
    CopyTemplateFiles();
    LoadStyles();
    BuildCategoryTrees(snapshot);
    BuildZoneList(snapshot);
    BuildEmphasisBlocks(snapshot);
    AddCompanyLogos();
    BuildZonePages(snapshot);
    BuildZoneLinks();
    return BuildFixedPages(pageName);
}

} // namespace

bool GenerateSite(const QString& templatePath, SiteSnapshot& snapshot) {
    if (templatePath.isEmpty() || !QFileInfo(templatePath).isFile()) {
        return false;
    }
    HoldTemplate(true);
    const auto over = qScopeGuard([] { HoldTemplate(false); });
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
        ExpandSite(snapshot);
    }
    if (!AbortPublish) {
        NextStep();
        CopyCustomFiles();
        FinishSite(snapshot);
        ShowOverall(3);
    }
    if (AbortPublish) {
        return false;
    }
    NextStep();
    return DeliverSite(snapshot);
}

QString GeneratePreviewPage(const QString& request, const QString& templatePath,
                            SiteSnapshot& snapshot) {
    const QString kind = NthField(request, kRequestKind, "|");
    const QString productId = NthField(request, kRequestProduct, "|");
    const bool ofProduct = kind == u"PRODUCT" || kind == u"LAYOUT";
    if (!ofProduct && kind != u"FINDUS" && kind != u"ABOUTUS") {
        return {};
    }
    if (TemplateHeld) { // the files are a run's, which a user's cancel must still reach
        return {};
    }
    SetAbortPublish(false);
    ResetGeneration();
    if (!LoadTemplateFile(templatePath)) {
        return {};
    }
    LoadLanguageStrings();
    BuildChoiceLists(snapshot);
    const int marker = kind == u"LAYOUT" ? kLayoutMarker : 0;
    const QString page = ofProduct ? ExpandProductPreview(productId, marker, snapshot)
                                   : ExpandFixedPreview(kind, snapshot);
    FinishSite(snapshot);
    const QString folder = DBpath + "temp/";
    if (page.isEmpty() || !SaveOutputFiles(folder)) {
        return {};
    }
    return folder + page;
}
