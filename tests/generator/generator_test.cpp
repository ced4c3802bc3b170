// What no site shows: codes for odd texts, designs that end a run, cancelling, and zone pages,
// which no product asks for so far. What sites show is compared in tests/sites.
#include "core/settings.h"
#include "generator/categories.h"
#include "generator/choices.h"
#include "generator/fieldvalues.h"
#include "generator/finish.h"
#include "generator/generation.h"
#include "generator/productpages.h"
#include "generator/zonepages.h"
#include "generator/zones.h"
#include "site/abort.h"
#include "site/md5.h"
#include "site/outputs.h"
#include "site/styles.h"
#include "site/template.h"
#include "site/weblangs.h"
#include "tests/support/catalogue.h"
#include "tests/support/templatebuilder.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace {

constexpr char kRows[] = R"(
    product; 1; A; 1; 0; Centro
    product; 2; B; 2; 0; l'Eixample
    product; 3; C; 3; 0; Centro)";

// A catalogue in a language or two and a design, loaded as the driver loads them.
class Generator : public testing::Test {
protected:
    void Load(const TemplateBuilder& design, const QString& langs = "ES") {
        SetUserLangs(langs, langs.left(2));
        SetAbortPublish(false);
        ResetGeneration();
        design.Load();
    }

    static std::string Zones() {
        QStringList zones;
        for (const ZoneLang& zone : ZoneLangList) {
            zones += zone.TipViv + '/' + zone.SaleZone + '/' + zone.Lang;
        }
        return zones.join(' ').toStdString();
    }

    TestCatalogue catalogue{kRows};
};

} // namespace

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

TEST(ChoiceNumber, IsAnIndexThatSixteenBitsHoldOrNone) {
    const struct {
        const char* stored;
        int expected;
    } cases[] = {{"0", 0},      {"32767", 32767}, {"32768", -1}, {"-1", -1},
                 {"2 rojo", 2}, {"rojo", 0},      {"", 0},       {"1e9", -1}};
    for (const auto& row : cases) {
        EXPECT_EQ(ChoiceNumber(row.stored), row.expected) << row.stored;
    }
}

TEST(ColourSets, AreListedByTheirNumbers) {
    EXPECT_EQ(ReadColorSets("NUMBERSOFSTYLES=2;COLORSSTYLE1=red,blue;COLORSSTYLE2=tan;"),
              "red,blue|tan");
    EXPECT_EQ(ReadColorSets("NUMBERSOFSTYLES=1;COLORSSTYLE10=ten;COLORSSTYLE1=one;"), "ten");
    EXPECT_EQ(ReadColorSets("NUMBERSOFSTYLES=x;"), "");
    std::vector<StyleColor> colors{{"kept", "kept"}};
    ApplyStyle("no parameters", 1, colors);
    EXPECT_EQ(colors.size(), 1u);
}

TEST_F(Generator, DesignsThatCannotBeReadEndTheRun) {
    Load(TemplateBuilder().AddList(kKindChoiceList, "%%C%%", "", "x", ""));
    EXPECT_THROW(BuildChoiceLists(catalogue.Snapshot()), StoreError) << "no field number";
    Load(TemplateBuilder().Add(kKindLanguages, "ES|EN", "", "%SI%#%NO%|S#N|Y#N#M"));
    EXPECT_THROW(LoadLanguageStrings(), std::runtime_error) << "more words than tags";
}

TEST_F(Generator, CancelEndsThePassesBeforeTheNextProductOrFile) {
    Load(TemplateBuilder().Add(kKindProductPage, "p.html", "", "%LID%"));
    SetAbortPublish(true);
    BuildProductPages({}, 0, false, catalogue.Snapshot());
    EXPECT_TRUE(OutputFiles.empty());
    AddOutputFile({"a.html", "ES", {}, false, "%LID%"});
    FinishSite(catalogue.Snapshot());
    EXPECT_EQ(OutputFiles[0].Data, "%LID%");
    EXPECT_EQ(OutputFiles[0].Md5, "");
}

TEST_F(Generator, EveryFinishedFileGetsTheHashOfItsFinishedBytes) {
    Load(TemplateBuilder());
    AddOutputFile({"a.css", "ES", {}, false, "%LID%"});
    AddOutputFile({"a.gif", "", {}, false, "%LID%"});
    FinishSite(catalogue.Snapshot());
    EXPECT_EQ(OutputFiles[0].Md5, MD5Bytes("ES"));
    EXPECT_EQ(OutputFiles[1].Md5, MD5Bytes("%LID%"));
}

TEST_F(Generator, ProductPagesNoteTheirZonesOnceForEachLanguage) {
    Load(TemplateBuilder().Add(kKindProductPage, "p.html", "", "x"), "ES|EN");
    AddZoneLang("", "Centro", "EN", 0); // of an earlier pass
    BuildProductPages({}, 0, false, catalogue.Snapshot());
    EXPECT_EQ(Zones(), "/Centro/ES /Centro/EN /l'Eixample/ES /l'Eixample/EN");
}

TEST_F(Generator, ZoneLinksNeedBothTexts) {
    Load(TemplateBuilder().AddList(kKindZoneLinks, "%%LINKS%%", "[",
                                   "%%TIPVIV%%,%%SALEZONE%%,%%FILENAME%%;", "]"),
         "ES|EN");
    AddZoneLang("", "Centro", "ES", 0);
    AddZoneLang("Piso", "Centro", "ES", 0);
    AddZoneLang("Piso", "", "ES", 0);
    BuildZoneLinks();
    ASSERT_EQ(ZoneLinkBlocks.size(), 2u);
    EXPECT_EQ(ZoneLinkBlocks[0].Text.toStdString(), "[Piso,Centro,-piso-centro-es.html;]");
    EXPECT_EQ(ZoneLinkBlocks[1].Text.toStdString(), "[]");
}

TEST_F(Generator, ZonePagesAreMadeForMarkedZonesAlone) {
    Load(TemplateBuilder()
             .AddList(kKindZoneBlock, "%%ZONE%%", "[", "%%PRID%%", "]")
             .Add(kKindZonePage, "zone%LID%.html", "", "%%SALEZONE%%/%%TIPVIV%%/%%ZONE%%"));
    AddZoneLang("Piso", "l'Eixample", "ES", kZoneMarked);
    AddZoneLang("", "Centro", "ES", 0);
    BuildZonePages(catalogue.Snapshot());
    ASSERT_EQ(OutputFiles.size(), 1u);
    EXPECT_EQ(OutputFiles[0].Name, "-piso-l-eixample-es.html");
    EXPECT_EQ(OutputFiles[0].Data, "l'Eixample/Piso/[2]");
    EXPECT_EQ(TemplateSections[0].Name, "");
}
