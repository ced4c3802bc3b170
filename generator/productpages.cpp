#include "generator/productpages.h"

#include "core/settings.h"
#include "generator/pictureblock.h"
#include "generator/siteproduct.h"
#include "generator/zones.h"
#include "pictures/productpictures.h"
#include "site/abort.h"
#include "site/outputs.h"
#include "site/steps.h"
#include "site/template.h"
#include "site/transforms.h"
#include "site/weblangs.h"
#include "store/langvalues.h"
#include "text/ansi.h"
#include "text/dates.h"

using namespace Qt::StringLiterals;

namespace {

// No product's zone gets a listing page.
constexpr int kZoneUnmarked = 0;

// What all pages of one pass share.
struct PagePass {
    PagePass(SiteSnapshot& sets, int section, int layoutMarker)
        : snapshot(sets), sources(sets), body(SectionBodies[section]),
          namePattern(TemplateSections[section].Name), marker(layoutMarker) {}

    SiteSnapshot& snapshot;
    FieldSources sources;
    PictureFrames frames;
    TagText body;
    TagText page; // the one being made
    QString namePattern;
    int marker;
    QString pageName;             // of the language shown in the editor
    FieldList fields;             // of the page being made
    std::vector<FieldList> texts; // of the product, in the order of WebLangs
};

// Whether `text` has the shape of a stored date, so that two of them compare as their texts do.
bool LooksStored(const QString& text) {
    return text.size() == 19 && text[4] == u'-' && text[7] == u'-' && text[10] == u'T' &&
           text[13] == u':' && text[16] == u':';
}

// Whether the row has changed since the site was last published. A date that can't be read counts
// as none: a row's is then not later, and the site's is earlier than any.
class ChangeTest {
public:
    ChangeTest() : lastWebUpdate(ReadDate(LastWebUpdate)) {
        if (lastWebUpdate) {
            storedUpdate = StoredDateText(*lastWebUpdate);
        }
    }
    bool Changed(const QString& lastUpdateText) const {
        if (LastWebUpdate.isEmpty()) {
            return true;
        }
        // Most rows have not changed, and reading a date takes its time.
        if (lastWebUpdate && LooksStored(lastUpdateText) && lastUpdateText <= storedUpdate) {
            return false;
        }
        const std::optional<QDateTime> lastUpdate = ReadDate(lastUpdateText);
        return lastUpdate && (!lastWebUpdate || *lastUpdate > *lastWebUpdate);
    }

private:
    std::optional<QDateTime> lastWebUpdate;
    QString storedUpdate;
};

void ReplaceInName(QString& name, const SiteProduct& row) {
    name.replace(u"%%PRODUCTID%%"_s, row.ProductId);
    name.replace(u"%%PRID%%"_s, row.ProductId);
    if (name.contains(u"%%PRICEAMOUNT%%"_s)) {
        name.replace(u"%%PRICEAMOUNT%%"_s, PriceWithDecimals(row.PriceAmount));
    }
    name.replace(u"%%PRICECURRENCY%%"_s, row.PriceCurrency);
    name.replace(u"%%SALEZONE%%"_s, row.SaleZone);
}

// With the product's fields and texts loaded.
void BuildPage(PagePass& pass, const SiteProduct& row, qsizetype place) {
    const QString& lang = WebLangs[place];
    TagText& body = pass.page;
    body = pass.body;
    QString name = pass.namePattern;
    ReplaceProductTags(body, row);
    body.Replace("%%PRODUCTREF%%"_ba, ToAnsi(row.ProductRef));
    ReplaceProductTexts(body, pass.texts[place], &name);
    ReplaceInName(name, row);
    ReplaceFields(body, pass.fields, EmptyShows::Dash);
    AddZoneLang(QString(), row.SaleZone, lang, kZoneUnmarked);

    Recordset& pictures = pass.snapshot[kSnapPictures];
    const QByteArray block =
        BuildPictureBlock(pass.frames, row.ProductId, lang, pass.sources, pictures);
    body.Replace(pass.frames.TagName, block);
    body.ReplaceBy("%%MAINPICTUREID%%"_ba,
                   [&] { return ToAnsi(MainPictureId(row.ProductId, pictures)); });
    AddDraft(name, lang, TextToBytes(body.Text()));
    if (lang == UICurrentLang) {
        pass.pageName = TrimBlanks(name.replace(u"%LID%"_s, lang));
    }
}

void BuildPages(PagePass& pass, const SiteProduct& row) {
    LoadLangFields(pass.sources, row.ProductId, TextTableName(TextTable::Products), WebLangs,
                   pass.texts);
    for (qsizetype place = 0; place < WebLangs.size(); ++place) {
        if (place > 0 && pass.marker != kLayoutMarker) {
            TranslateFields(pass.fields, WebLangs[place]);
        } else {
            LoadProductFields(pass.sources, row.ProductId, WebLangs[place], pass.marker,
                              pass.fields);
        }
        BuildPage(pass, row, place);
    }
    RenderProductPictures(row.ProductId, row.ProductRef, pass.snapshot[kSnapPictures]);
}

} // namespace

QString BuildProductPages(const QString& productId, int layoutMarker, bool changedOnly,
                          SiteSnapshot& snapshot) {
    ResetZoneLangList();
    const int section =
        FindSection(layoutMarker == kLayoutMarker ? kKindLayoutPage : kKindProductPage);
    if (section == kNoSection) {
        return {};
    }
    PagePass pass(snapshot, section, layoutMarker);
    Recordset& products = snapshot[kSnapProducts];
    if (productId.isEmpty()) {
        products.ClearFilter();
    } else {
        products.SetFilter({{u"ProductId", productId}});
    }
    const SiteProductReader reader(products);
    const ChangeTest changes;
    const bool all = !changedOnly || !productId.isEmpty();
    const int count = products.RecordCount();
    for (int place = 1; products.HasRow() && !AbortPublish; ++place, products.MoveNext()) {
        SetProgress(place, count, 0, kBarTask);
        if (all || changes.Changed(reader.LastUpdate())) {
            BuildPages(pass, reader.Read());
        }
    }
    products.ClearFilter();
    return pass.pageName;
}
