#include "generator/productpages.h"

#include "core/settings.h"
#include "generator/fieldvalues.h"
#include "generator/finish.h"
#include "generator/zones.h"
#include "site/abort.h"
#include "site/outputs.h"
#include "site/template.h"
#include "tests/generator/sitefixture.h"

namespace {

// Two products: one with everything, one with nothing.
constexpr char kRows[] = R"(
    def; 0; B; ESGaraje#ENGarage
    def; 1; O; ESColor#ENColour; ESRojo#ENRed|ESVerde#ENGreen
    def; 2; T; ESNota#ENNote
    def; 8; T
    def; 9; T
    textdef; Products; 0; ShortDesc
    textdef; Products; 1; LongDesc
    textdef; Pictures; 0; PicTitle
    product; 7; A-1; 1234.5; 0; Centro; 2026-03-01T10:00:00
    product; 8; B-2; NULL; 0; NULL; 2026-02-01T10:00:00
    field; 7; 0; 1
    field; 7; 1; 1
    field; 7; 2; l'mar
    field; 7; 4; sin definición
    text; Products; 7; ES; 0; Ático Nuevo
    text; Products; 7; ES; 1; dos
    text; Products; 7; EN; 0; Flat
    text; Pictures; 702; ES; 0; Salón
    picture; 7; 1; 1
    picture; 7; 2; 0
    picture; 7; 3; 2
)";

class ProductPages : public SiteFixture {};

// The page that `body` becomes for a product in a language.
struct PageCase {
    const char* product;
    const char* lang;
    const char* body;
    const char* expected;
};

const PageCase kPages[] = {
    {"7", "ES", "%%PRID%%/%%PRODUCTID%%/%%PRODUCTREF%%", "7/7/A-1"},
    {"7", "ES", "%%PRICEAMOUNT%%|%%PRICEAMOUNT2%%|%%PRICECURRENCY%%", "1.234,50|1.235|EUR"},
    {"8", "ES", "%%PRICEAMOUNT%%|%%PRICEAMOUNT2%%", "%%ACONSULTAR%%|%%ACONSULTAR%%"},
    {"8", "ES", "%%SALEZONE%%|%%0%%|%%SHORTDESC%%", "|%%0%%|-"},
    {"7", "ES", "%%0%% %%1%% %%2%% %%4%%", "%SI% Verde l'mar sin definición"},
    {"7", "EN", "%%1%% %%SHORTDESC%% %%LONGDESC%% %FK%", "Green Flat - -flat"},
    {"7", "ES", "%FK%|%%MAINPICTUREID%%|%LID%", "-atico-nuevo|702|%LID%"},
    {"8", "ES", "%%MAINPICTUREID%%|%FK%", "nopicture|"},
    {"7", "ES", "%%2%%.DOCWRITE", "document.writeln('l\\'mar');\r\n"},
    {"7", "ES", "%%PRODUCTREF %%%%UNKNOWN%%", "%%PRODUCTREF %%%%UNKNOWN%%"},
};

} // namespace

TEST_F(ProductPages, EveryTagBecomesTheValueOfItsProductAndLanguage) {
    for (const PageCase& page : kPages) {
        Load(TemplateBuilder().Add(kKindProductPage, "p.html", "", page.body), kRows, "ES|EN");
        BuildProductPages(page.product, 0, false, Snapshot());
        EXPECT_EQ(Output("p.html", page.lang), QString(page.expected).toLatin1().toStdString())
            << page.body;
    }
}

// A stored value against its definition.
TEST_F(ProductPages, StoredValuesOfEveryKindAreShownOrLeftAlone) {
    const struct {
        const char* type;
        const char* stored;
        const char* expected;
    } cases[] = {
        {"B", "1", "%SI%"},  {"B", "0", "%NO%"},    {"B", "NULL", "%NO%"}, {"b", "1", "1"},
        {"O", "0", "Rojo"},  {"O", "1,5", "-"},     {"O", "2", "-"},       {"O", "-1", "-"},
        {"O", "70000", "-"}, {"O", "rojo", "rojo"}, {"O", "NULL", "-"},    {"T", "NULL", "-"},
    };
    for (const auto& row : cases) {
        Load(TemplateBuilder().Add(kKindProductPage, "p.html", "", "%%0%%"),
             QString("def; 0; %1; ; ESRojo|ESVerde\nproduct; 1; A; 1; 0\nfield; 1; 0; %2")
                 .arg(row.type, row.stored));
        BuildProductPages({}, 0, false, Snapshot());
        EXPECT_EQ(Output("p.html", "ES"), row.expected) << row.type << ' ' << row.stored;
    }
}

TEST_F(ProductPages, NamesHoldTheFileKeyAndTheFormattedZero) {
    Load(TemplateBuilder().Add(kKindProductPage, "prod%%PRID%%%FK%%LID%.htm", "", "x"), kRows,
         "ES|EN");
    EXPECT_EQ(BuildProductPages("7", 0, false, Snapshot()), "prod7-atico-nuevoES.htm");
    EXPECT_EQ(Names(), "prod7-atico-nuevo%LID%.htm prod7-flat%LID%.htm");

    Load(TemplateBuilder().Add(kKindProductPage, "%%PRICEAMOUNT%%.h", "", "x"), kRows);
    BuildProductPages({}, 0, false, Snapshot());
    EXPECT_EQ(Names(), "1.234,50.h ,00.h");
}

TEST_F(ProductPages, OnlyChangedProductsAreExpandedWhenAskedFor) {
    const struct {
        const char* lastWebUpdate;
        bool changedOnly;
        const char* product;
        const char* expected;
    } cases[] = {
        {"15/02/2026 00:00:00", true, "", "p7"},
        {"01/03/2026 10:00:00", true, "", ""},
        {"28/02/2026 10:00:00", false, "", "p9 p7 p8"},
        {"01/04/2026 10:00:00", true, "8", "p8"},
        {"", true, "", "p9 p7 p8"},
        {"ayer", true, "", "p7 p8"},
    };
    for (const auto& row : cases) {
        // The date of the last product can't be read: it is never later.
        Load(TemplateBuilder().Add(kKindProductPage, "p%%PRID%%", "", "x"),
             QString(kRows) + "product; 9; C; 1; 0; ; mañana\n");
        SetLastWebUpdate(row.lastWebUpdate);
        BuildProductPages(row.product, 0, row.changedOnly, Snapshot());
        EXPECT_EQ(Names(), row.expected) << row.lastWebUpdate;
    }
}

TEST_F(ProductPages, NothingIsMadeWithoutASectionOrAfterACancel) {
    Load(TemplateBuilder().Add(kKindLayoutPage, "l.html", "", "x"), kRows);
    EXPECT_EQ(BuildProductPages({}, 0, false, Snapshot()), "");
    EXPECT_TRUE(OutputFiles.empty());

    Load(TemplateBuilder().Add(kKindProductPage, "p.html", "", "x"), kRows);
    SetAbortPublish(true);
    BuildProductPages({}, 0, false, Snapshot());
    EXPECT_TRUE(OutputFiles.empty());
}

TEST_F(ProductPages, ZonesAreNotedOnceForEachLanguage) {
    Load(TemplateBuilder().Add(kKindProductPage, "p.html", "", "x"),
         QString(kRows) + "product; 9; C; 1; 0; Centro\n", "ES|EN");
    BuildProductPages({}, 0, false, Snapshot());
    QStringList zones;
    for (const ZoneLang& zone : ZoneLangList) {
        zones.append(zone.TipViv + '/' + zone.SaleZone + '/' + zone.Lang +
                     QString::number(zone.Marked));
    }
    zones.sort();
    EXPECT_EQ(zones, QStringList({"//EN0", "//ES0", "/Centro/EN0", "/Centro/ES0"}));
}

TEST_F(ProductPages, FirstPictureIsLeftToThePageAndEveryPictureGetsItsOwn) {
    const QString tags = "%%PICTUREID%%,%%PRODUCTID%%,%%PRODPICTUREID%%,%LID%,%%PICTITLE%%;";
    TemplateBuilder design;
    design.Add(kKindProductPage, "p%%PRID%%.html", "", "%%GALLERY%%")
        .AddList(kKindPictureBlock, "%%GALLERY%%", "[", tags, "]")
        .Add(kKindPicturePage, "f%%PICTUREID%%%LID%.html", "", tags);
    Load(design, kRows);
    BuildProductPages({}, 0, false, Snapshot());
    EXPECT_EQ(Names(), "f702ES.html f701ES.html f703ES.html p7.html p8.html");
    EXPECT_EQ(Output("p7.html", "ES"), "[701,7,1,ES,;703,7,3,ES,;]");
    EXPECT_EQ(Output("p8.html", "ES"), "[]");
    EXPECT_EQ(Output("f702ES.html", "ES"), "702,7,2,ES,Sal\xf3n;");
}

TEST_F(ProductPages, PicturePagesNeedAPictureBlock) {
    TemplateBuilder design;
    design.Add(kKindProductPage, "p%%PRID%%.html", "", "%%GALLERY%%")
        .Add(kKindPicturePage, "f%%PICTUREID%%.html", "", "x");
    Load(design, kRows);
    BuildProductPages("7", 0, false, Snapshot());
    EXPECT_EQ(Names(), "p7.html");
    EXPECT_EQ(Output("p7.html", "ES"), "%%GALLERY%%");
}

TEST_F(ProductPages, LayoutPreviewClosesUpItsFields) {
    constexpr char kLayoutRows[] = R"(
        def; 0; B; ESGaraje
        def; 1; T; ESNota
        def; 2; T; ESSalón
        def; 3; B; ESPatio
        product; 1; A; 1; 0
        field; 1; 0; 0
        field; 1; 1; NULL
        field; 1; 2; grande
        field; 1; 3; 1
    )";
    TemplateBuilder design;
    design
        .Add(kKindLayoutPage, "l.html", "",
             "%%FIELDDEF0%%=%%0%% %%FIELDDEF1%%=%%1%% %%FIELDDEF2%%=%%2%% %%FIELDDEF3%%=%%3%%")
        .Add(kKindProductPage, "p.html", "", "x");
    Load(design, kLayoutRows);
    EXPECT_EQ(BuildProductPages("1", kLayoutMarker, false, Snapshot()), "l.html");
    EXPECT_EQ(ActiveFieldDefs, QStringList({"2", "3"}));
    FinishSite(Snapshot());
    const std::string page = Output("l.html", "ES");
    EXPECT_EQ(page.substr(page.find("\r\n\r\n\r\n\r\n") + 8),
              "Sal\xf3n=grande Patio=%SI% =&nbsp; =&nbsp;");
}
