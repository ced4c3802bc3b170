#include "core/settings.h"
#include "generator/categories.h"
#include "generator/choices.h"
#include "generator/zones.h"
#include "site/styles.h"
#include "site/tagtext.h"
#include "site/template.h"
#include "site/weblangs.h"
#include "tests/generator/sitefixture.h"
#include "text/ansi.h"

#include <stdexcept>

namespace {

class Fragments : public SiteFixture {};

constexpr char kChoiceRows[] = R"(
    def; 3; O; ; ESRojo#ENRed|ESVerde#ENGreen|ESAzul
    def; 10; T
    def; 11; T
    def; 12; T
    product; 1; A; 1; 0
    product; 2; B; 1; 0
    product; 3; C; 1; 0
    product; 4; D; 1; 2
    field; 1; 3; 2
    field; 2; 3; 1
    field; 3; 3; 2
    field; 3; 0; 0
    field; 4; 3; 0
)";

} // namespace

TEST_F(Fragments, ZoneListsAndCodesFollowTheOrderOfTheZones) {
    QString rows = "product; 1; A; 1; 0;\nproduct; 2; A; 1; 2; Archivada\n";
    for (int zone = 0; zone < 17; ++zone) {
        rows += QString("product; %1; A; 1; 0; Z%1\n").arg(100 + zone);
    }
    TemplateBuilder design;
    design.AddList(kKindZoneList, "%%ZONES%%", "[", "%%SALEZONEID%%:%%SALEZONE%% ", "]")
        .Add(kKindCopiedFile, "a.css", "", "x")
        .AddList(kKindZoneList, "%%MORE%%", "", "%%SALEZONEID%%", ".");
    Load(design, rows);
    BuildZoneList(Snapshot());
    ASSERT_EQ(ZoneFragments.size(), 2u);
    EXPECT_TRUE(ZoneFragments[0].Text.startsWith("[0:Z100 1:Z101 "));
    EXPECT_EQ(ZoneFragments[1].Text.toStdString(), "0123456789ABCDEF10.");
    EXPECT_EQ(ZoneCode("Z115"), "F");
    EXPECT_EQ(ZoneCode("z115"), "");
}

TEST_F(Fragments, ZoneLinksNeedBothTexts) {
    TemplateBuilder design;
    design.AddList(kKindZoneLinks, "%%LINKS%%", "[", "%%TIPVIV%%,%%SALEZONE%%,%%FILENAME%%;", "]");
    Load(design, "", "ES|EN");
    AddZoneLang("", "Centro", "ES", 0);
    AddZoneLang("Piso", "Centro", "ES", 0);
    BuildZoneLinks();
    ASSERT_EQ(ZoneLinkBlocks.size(), 2u);
    EXPECT_EQ(ZoneLinkBlocks[0].Text.toStdString(), "[Piso,Centro,-piso-centro-es.html;]");
    EXPECT_EQ(ZoneLinkBlocks[1].Text.toStdString(), "[]");
}

TEST_F(Fragments, ChoiceListsHoldWhatProductsUseInOrderOfFirstUse) {
    TemplateBuilder design;
    design.AddList(kKindChoiceList, "%%C%%", "[", "%%CHOICEVALUE%%=%%CHOICE%% ", "]",
                   "FIELDDEFID=3;");
    design.AddList(kKindChoiceList, "%%NONE%%", "[", "x", "]", "FIELDDEFID=2;");
    design.AddList(kKindChoiceList, "%%NODEF%%", "[", "%%CHOICEVALUE%%=%%CHOICE%%", "]",
                   "FIELDDEFID=0;");
    Load(design, kChoiceRows, "ES|EN");
    BuildChoiceLists(Snapshot());
    QList<QByteArray> texts;
    for (const ChoiceBlock& block : ChoiceBlocks) {
        texts.append(block.TagName.trimmed() + ToAnsi(block.Lang) + block.Text);
    }
    EXPECT_EQ(texts, QList<QByteArray>({"%%C%%ES[2=Azul 1=Verde ]", "%%C%%EN[2=Azul 1=Green ]",
                                        "%%NONE%%ES[]", "%%NONE%%EN[]", "%%NODEF%%ES[0=]",
                                        "%%NODEF%%EN[0=]"}));
}

TEST_F(Fragments, ChoiceListWithoutAFieldNumberIsRefused) {
    Load(TemplateBuilder().AddList(kKindChoiceList, "%%C%%", "", "x", ""), kChoiceRows);
    EXPECT_THROW(BuildChoiceLists(Snapshot()), StoreError);
    std::vector<ChoiceItem> items;
    for (const char* id : {"", "x", "3x", "1e1", "-", ".", "+3", "3 OR 4"}) {
        EXPECT_THROW(LoadChoiceItems(Snapshot(), id, "ES", items), StoreError) << id;
    }
    for (const char* id : {"3", " 03 ", "3.0", "3."}) {
        LoadChoiceItems(Snapshot(), id, "ES", items);
        EXPECT_EQ(items.size(), 2u) << id;
    }
}

TEST(CategoryHash, IsTheMeanDistanceFromAAndTheLength) {
    const struct {
        const char* text;
        const char* expected;
    } cases[] = {{"A", "01"},
                 {"", "00"},
                 {"Flat", "204"},
                 {"\xff\xff", "BE2"},
                 {"0", "FFFFFFEF1"},
                 {"B@@", "03"},
                 {"ABCDEFGHIJKLMNOP", "710"}};
    for (const auto& row : cases) {
        EXPECT_EQ(CategoryHash(QByteArray(row.text)).toStdString(), row.expected) << row.text;
    }
}

TEST_F(Fragments, CategoryTreeHasItsSubcategoriesBehindEachCategory) {
    constexpr char kRows[] = R"(
        text; Products; 1; ES; 2; B
        text; Products; 2; ES; 2; A/y
        text; Products; 3; ES; 2; A/x/z/w
        text; Products; 4; ES; 2; NULL
        text; Products; 5; ES; 2; A/y
        text; Products; 6; ES; 2; B/
        text; Products; 7; ES; 1; otro texto
    )";
    TemplateBuilder design;
    design.AddList(kKindCategoryTree, "%%T%%", "[",
                   "%%CHOICE%%=%%CHOICEVALUE%%<!--SUBCATEGORY +%%CHOICE%%=%%CHOICEVALUE%%"
                   "SUBCATEGORY-->;",
                   "]", "FIELDDEFID=Products.2;");
    Load(design, kRows, "ES|EN");
    BuildCategoryTrees(Snapshot());
    ASSERT_EQ(ChoiceBlocks.size(), 2u);
    EXPECT_EQ(ChoiceBlocks[0].Text.toStdString(),
              "[(Sin Categoria)=17F;A=01; +x=107 +y=C3B=FFFFFFF82;]");
    EXPECT_EQ(ChoiceBlocks[1].Text.toStdString(), "[]");
}

TEST_F(Fragments, ChosenColourSetGivesTheValues) {
    constexpr char kBody[] = "PARAMS=#C1#,#C2#;NUMBERSOFSTYLES=2;COLORSSTYLE1=red,blue;"
                             "COLORSSTYLE2=tan,pink;"
                             "<!--STYLE1 #C1#=red;#C2#=blue; STYLE1-->"
                             "<!--STYLE2 #C1#=tan;#C2#=pink; STYLE2-->";
    EXPECT_EQ(ReadColorSets(kBody), "red,blue|tan,pink");
    EXPECT_EQ(ReadColorSets("NUMBERSOFSTYLES=1;COLORSSTYLE10=ten;COLORSSTYLE1=one;"), "ten");
    EXPECT_EQ(ReadColorSets("NUMBERSOFSTYLES=x;"), "");

    std::vector<StyleColor> colors;
    ApplyStyle(kBody, 2, colors);
    ASSERT_EQ(colors.size(), 2u);
    EXPECT_EQ(colors[1].Name, "#C2#");
    EXPECT_EQ(colors[1].Value, "pink");
    ApplyStyle("no parameters", 1, colors);
    EXPECT_EQ(colors.size(), 2u);
    ApplyStyle(kBody, 5, colors);
    ASSERT_EQ(colors.size(), 2u);
    EXPECT_EQ(colors[0].Value, "");
}

TEST_F(Fragments, TemplateWordsReplaceTheirTagsInTheirLanguageAlone) {
    Load(TemplateBuilder().Add(kKindLanguages, "ES|EN", "",
                               "%SI%#%%A%%#%NO%|S\u00ed %%A%%#B#No|Yes"),
         "");
    LoadLanguageStrings();
    const struct {
        const char* lang;
        const char* expected;
    } cases[] = {{"ES", "S\xed B B No"},
                 {"EN", "Yes %%A%% %NO%"},
                 {"FR", "%SI% %%A%% %NO%"},
                 {"es", "%SI% %%A%% %NO%"}};
    for (const auto& row : cases) {
        TagText text("%SI% %%A%% %NO%");
        ApplyLanguageStrings(text, row.lang);
        EXPECT_EQ(text.Text().toStdString(), row.expected) << row.lang;
    }
}

TEST_F(Fragments, MoreWordsThanTagsEndTheRun) {
    Load(TemplateBuilder().Add(kKindLanguages, "ES|EN", "", "%SI%#%NO%|S#N|Y#N#M"), "");
    EXPECT_THROW(LoadLanguageStrings(), std::runtime_error);
}

TEST_F(Fragments, SelectorLinksTheLanguagesOfASiteInSeveral) {
    const TemplateBuilder design =
        TemplateBuilder().AddList(kKindLanguageSelector, "%%SEL%%", "(", "%LID%-", ")");
    const struct {
        const char* langs;
        const char* expected;
    } cases[] = {{"ES", ""}, {"ES|EN", "(ES-EN-)"}};
    for (const auto& row : cases) {
        Load(design, "", row.langs);
        EXPECT_EQ(BuildLanguageSelector(WebLangs).Text.toStdString(), row.expected);
        EXPECT_EQ(BuildLanguageSelector(WebLangs).TagName.trimmed(), "%%SEL%%");
    }
    Load(TemplateBuilder(), "", "ES|EN");
    EXPECT_EQ(BuildLanguageSelector(WebLangs).TagName, "");
}
