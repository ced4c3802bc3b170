#include "generator/datalist.h"
#include "generator/emphasis.h"
#include "generator/zonepages.h"
#include "generator/zones.h"
#include "site/outputs.h"
#include "site/template.h"
#include "tests/generator/sitefixture.h"

namespace {

constexpr char kRows[] = R"(
    def; 0; O; ; ESRojo#ENRed|ESVerde#ENGreen
    def; 1; T
    textdef; Products; 0; ShortDesc
    product; 1; A'1; 1234.5; 1; Centro; 2026-01-03T00:00:00
    product; 2; B2; 0; 0; l'Eixample; 2026-01-02T00:00:00
    product; 3; C3; NULL; 0; ; 2026-01-01T00:00:00
    field; 1; 0; 1
    field; 2; 0; 0
    field; 2; 1; luz
    text; Products; 1; ES; 0; Ático
    text; Products; 2; ES; 0; l'Eixample
    text; Products; 1; EN; 0; Flat
    picture; 2; 4; 0
)";

class Lists : public SiteFixture {};

QString ManyProducts(int count) {
    QString rows;
    for (int id = 1; id <= count; ++id) {
        rows += QString("product; %1; R%1; 0; 0; ; 2026-01-01T00:00:%2\n")
                    .arg(id)
                    .arg(59 - id, 2, 10, QChar('0'));
    }
    return rows;
}

} // namespace

TEST_F(Lists, DataListHoldsEveryArrayInTheOrderOfTheProducts) {
    const struct {
        const char* tag;
        const char* spanish;
        const char* english;
    } cases[] = {
        {"%%LISTPRODUCTID%%", "'1','2','3' ", "'1','2','3' "},
        {"%%LISTPRODUCTFKID%%", "'1-atico','2-l-eixample','3' ", "'1-flat','2','3' "},
        {"%%LISTPRODUCTREF%%", "'A\\'1','B2','C3' ", "'A\\'1','B2','C3' "},
        {"%%LISTSALEZONE%%", "'Centro','l\\'Eixample','' ", "'Centro','l\\'Eixample','' "},
        {"%%LISTSALEZONECODE%%", "'0','1','' ", "'0','1','' "},
        {"%%LISTPRICEAMOUNT%%", "1234.5,0, ", "1234.5,0, "},
        {"%%LISTMAINPICTUREID%%", "'nopicture','204','nopicture' ",
         "'nopicture','204','nopicture' "},
        {"%%LIST0%%", "'Verde','Rojo',", "'Green','Red',"},
        {"%%LIST0%%.ID", "'1','0',", "'1','0',"},
        {"%%LIST1%%|%%LIST1%%.ID", "'luz',|'',", "'luz',|'',"},
        {"%%LISTSHORTDESC%%", "'\xc1tico','l&#39Eixample','' ", "'Flat','','' "},
        {"%%LISTSHORTDESC%%.ID", "'3B5','1FA','00' ", "'204','00','00' "},
        {"%%LIST7%%", "%%LIST7%%", "%%LIST7%%"},
    };
    for (const auto& row : cases) {
        Load(TemplateBuilder().Add(kKindDataList, "list%LID%.js", "", row.tag), kRows, "ES|EN");
        BuildZoneList(Snapshot());
        BuildProductDataList(Snapshot());
        EXPECT_EQ(Output("list%LID%.js", "ES"), row.spanish) << row.tag;
        EXPECT_EQ(Output("list%LID%.js", "EN"), row.english) << row.tag;
    }
}

TEST_F(Lists, DataListExpandsATagThatAValueBrings) {
    Load(TemplateBuilder().Add(kKindDataList, "l.js", "", "%%LIST0%%"),
         "def; 0; T\ndef; 1; T\nproduct; 1; A; 1; 0\n"
         "field; 1; 0; %%LIST1%%\nfield; 1; 1; %%LIST0%%");
    BuildProductDataList(Snapshot());
    EXPECT_EQ(Output("l.js", "ES"), "''%%LIST0%%' ' ");
}

TEST_F(Lists, DataListWithoutProductsHasEmptyArrays) {
    Load(TemplateBuilder().Add(kKindDataList, "l.js", "", "a(%%LISTPRODUCTID%%)b(%%LIST0%%)"), "");
    BuildProductDataList(Snapshot());
    EXPECT_EQ(Output("l.js", "ES"), "a()b(%%LIST0%%)");
}

TEST_F(Lists, EmphasisBlocksShareTheProductsByTheirCapacities) {
    const struct {
        int first, second, products;
        const char* text1;
        const char* text2;
    } cases[] = {
        {3, 2, 10, "[1 2 3 ]", "<4 5 >"},    {3, 2, 2, "[1 2 ]", "<>"}, {0, 1, 3, "[]", "<1 >"},
        {2, 255, 6, "[1 2 ]", "<>"}, // 257 modulo 256 is 1, and 2 are shown already
        {2, 254, 6, "[1 2 ]", "<>"}, // 256 modulo 256 is 0
        {255, 4, 6, "[1 2 3 4 5 6 ]", "<>"},
    };
    for (const auto& row : cases) {
        TemplateBuilder design;
        design.Emphasis(row.first, row.second)
            .AddList(kKindEmphasis1, "%%E1%%", "[", "%%PRID%% ", "]")
            .AddList(kKindEmphasis2, "%%E2%%", "<", "%%PRID%% ", ">");
        Load(design, ManyProducts(row.products), "ES|EN");
        BuildEmphasisBlocks(Snapshot());
        for (size_t lang : {0, 1}) {
            EXPECT_EQ(EmphasisBlock1[lang].Text.toStdString(), row.text1)
                << row.first << '+' << row.second;
            EXPECT_EQ(EmphasisBlock2[lang].Text.toStdString(), row.text2)
                << row.first << '+' << row.second;
        }
    }
}

TEST_F(Lists, MissingEmphasisSectionEndsThePassInTheFirstLanguage) {
    TemplateBuilder design;
    design.Emphasis(1, 1).AddList(kKindEmphasis1, "%%E1%%", "[", "%%PRID%%", "]");
    Load(design, ManyProducts(3), "ES|EN");
    BuildEmphasisBlocks(Snapshot());
    EXPECT_EQ(EmphasisBlock1[0].Text.toStdString(), "[1]");
    EXPECT_EQ(EmphasisBlock1[1].TagName.toStdString(), "");
    EXPECT_EQ(EmphasisBlock2[0].TagName.toStdString(), "");
}

TEST_F(Lists, EmphasisedProductShowsItsRowFieldsAndTexts) {
    TemplateBuilder design;
    design.Emphasis(2, 0)
        .AddList(kKindEmphasis1, "%%E1%%", "",
                 "%%PRICEAMOUNT%%|%%PRICEAMOUNT2%%|%%PRICECURRENCY%%|%%SALEZONE%%|%%0%%|%%1%%|"
                 "%%SHORTDESC%%|%FK%|%%MAINPICTUREID%%|%%PRODUCTREF%%\n",
                 "")
        .AddList(kKindEmphasis2, "%%E2%%", "", "", "");
    Load(design, kRows, "EN");
    BuildEmphasisBlocks(Snapshot());
    EXPECT_EQ(EmphasisBlock1[0].Text.toStdString(),
              "1.234,50|1.235|EUR|Centro|Green|%%1%%|Flat|-flat|nopicture|%%PRODUCTREF%%\n"
              "%%ACONSULTAR%%|%%ACONSULTAR%%|EUR|l'Eixample|Red|luz|-||204|%%PRODUCTREF%%\n");
}

TEST_F(Lists, ZonePagesAreMadeForMarkedZonesAlone) {
    TemplateBuilder design;
    design.AddList(kKindZoneBlock, "%%ZONE%%", "[", "%%PRID%%", "]")
        .Add(kKindZonePage, "zone%LID%.html", "", "%%SALEZONE%%/%%TIPVIV%%/%%ZONE%%");
    Load(design, kRows);
    AddZoneLang("Piso", "l'Eixample", "ES", kZoneMarked);
    AddZoneLang("", "Centro", "ES", 0);
    BuildZonePages(Snapshot());
    EXPECT_EQ(Names(), "-piso-l-eixample-es.html");
    EXPECT_EQ(Output("-piso-l-eixample-es.html", "ES"), "l'Eixample/Piso/[2]");
    EXPECT_EQ(TemplateSections[0].Name, "");
}
