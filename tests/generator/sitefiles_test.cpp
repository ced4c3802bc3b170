#include "generator/sitefiles.h"

#include "core/settings.h"
#include "site/outputs.h"
#include "site/template.h"
#include "site/transforms.h"
#include "tests/generator/sitefixture.h"

namespace {

class SiteFiles : public SiteFixture {
protected:
    // Name and language of each file, in order.
    static std::string Files() {
        QStringList files;
        for (const OutputFile& file : OutputFiles) {
            files.append(TrimBlanks(file.Name) + ' ' + file.Lang);
        }
        return files.join(", ").toStdString();
    }
};

} // namespace

TEST_F(SiteFiles, CopiedPagesAndScriptsExistForEachLanguage) {
    const QByteArray bytes("\0%LID%\xff", 7);
    TemplateBuilder design;
    design.AddBytes(kKindCopiedFile, "LOGO.GIF", "", bytes)
        .Add(kKindCopiedFile, "menu.JS", "", "m")
        .Add(kKindCopiedFile, "a%LID%.Html", "", "a")
        .Add(kKindCopiedFile, "a.htm", "", "a")
        .Add(kKindCopiedFile, "s.css", "", "s");
    Load(design, "", "ES|EN");
    CopyTemplateFiles();
    EXPECT_EQ(Files(),
              "LOGO.GIF , menu.JS ES, menu.JS EN, a%LID%.Html ES, a%LID%.Html EN, a.htm , s.css ");
    EXPECT_EQ(Output("LOGO.GIF", ""), bytes.toStdString());
}

TEST_F(SiteFiles, HomePageOfTheMainLanguageIsAlsoTheIndex) {
    const struct {
        TemplateBuilder design;
        const char* expected;
    } cases[] = {
        {TemplateBuilder().Add(kKindHomePage, "", "", "h"),
         "indexEN.html EN, index.html EN, indexES.html ES"},
        {TemplateBuilder().Add(kKindPreview, "", "", "x").Add(kKindHomePage, "", "", "h"), ""},
        {TemplateBuilder()
             .Add(kKindPreview, "", "", "x")
             .Add(kKindPreview, "", "", "x")
             .Add(kKindHomePage, "", "", "h"),
         "indexEN.html EN, index.html EN, indexES.html ES"},
        {TemplateBuilder(), ""},
    };
    for (const auto& row : cases) {
        Load(row.design, "", "EN|ES");
        CopyIndexPages();
        EXPECT_EQ(Files(), row.expected);
    }
}

TEST_F(SiteFiles, MainLanguageOutsideTheSiteGivesNoIndex) {
    Load(TemplateBuilder().Add(kKindHomePage, "", "", "h"), "");
    SetUserLangs("ES", "EN");
    CopyIndexPages();
    EXPECT_EQ(Files(), "indexES.html ES");
}

TEST_F(SiteFiles, FirstLanguagePageAloneIsCopied) {
    TemplateBuilder design;
    design.Add(kKindLanguagePage, "l%LID%.html", "", "1").Add(kKindLanguagePage, "m", "", "2");
    Load(design, "", "ES|EN");
    CopyLanguagePages();
    EXPECT_EQ(Files(), "l%LID%.html ES, l%LID%.html EN");
}

TEST_F(SiteFiles, FixedPagesFollowTheirKindsAndAPreviewedOneIsNamedInTheTable) {
    TemplateBuilder design;
    design.Add(kKindFixedPage, "x%LID%", "", "x")
        .Add(kKindFindUs, "f%LID%", "", "f")
        .Add(kKindAboutUs, "a%LID%", "", "a");
    const struct {
        SectionKind preview;
        const char* result;
        const char* expected;
    } cases[] = {
        {kKindNone, "", "a%LID% ES, f%LID% ES, x%LID% ES, a%LID% EN, f%LID% EN, x%LID% EN"},
        {kKindFindUs, "fES", "a%LID% ES, fES ES, x%LID% ES, a%LID% EN, fES EN, x%LID% EN"},
        {kKindAboutUs, "aES", "aES ES, f%LID% ES, x%LID% ES, aES EN, f%LID% EN, x%LID% EN"},
    };
    for (const auto& row : cases) {
        Load(design, "", "ES|EN");
        EXPECT_EQ(BuildFixedPages(row.preview), row.result);
        EXPECT_EQ(Files(), row.expected) << row.preview;
    }
}
