#include "generator/finish.h"

#include "core/settings.h"
#include "generator/choices.h"
#include "generator/emphasis.h"
#include "generator/zones.h"
#include "site/abort.h"
#include "site/md5.h"
#include "site/outputs.h"
#include "site/styles.h"
#include "site/template.h"
#include "site/weblangs.h"
#include "store/corpinfo.h"
#include "tests/generator/sitefixture.h"
#include "text/dates.h"

namespace {

constexpr char kRows[] = R"(
    def; 0; T; ESNota#ENNote
    textdef; CorpInfo; 0; Lema
    text; CorpInfo; 0; ES; 0; Siempre
    product; 1; A; 0; 1; Centro
    corp; Name; Casa Ñ
    corp; MRinfo0; Lugo
    corp; MRinfo6; 7
    corp; Zone; Vigo
)";

constexpr char kGap[] = " \r\n\r\n\r\n\r\n";

class Finish : public SiteFixture {
protected:
    void Add(const char* name, const char* lang, const QByteArray& text) {
        AddOutputFile({name, lang, {}, false, text});
    }
    // The finished text of a page in a language, without the comment in front.
    std::string Finished(const QByteArray& text, const char* lang = "ES") {
        ClearOutputFiles();
        Add("a.css", lang, text);
        FinishSite(Snapshot());
        return OutputFiles[0].Data.toStdString();
    }
};

} // namespace

TEST_F(Finish, CommentStandsInFrontOfPagesAndScriptsAlone) {
    const QByteArray plain = QByteArray("<!-- Web Generada con Lumenta-->") + kGap + 'x';
    const struct {
        const char* name;
        QByteArray expected;
    } cases[] = {
        {"a.html", plain},
        {"a.HTML   ", plain},
        {"a.js", plain},
        {"a.css", "x"},
        {"a.txt", "x"},
        {"indexES.html", plain},
        {"Index.html ", QByteArray("<!-- Web Generada con Lumenta (V.1.1.19)-->") + kGap + 'x'},
    };
    for (const auto& row : cases) {
        Load(TemplateBuilder(), kRows);
        Add(row.name, "ES", "x");
        FinishSite(Snapshot());
        EXPECT_EQ(OutputFiles[0].Data, row.expected) << row.name;
        EXPECT_EQ(OutputFiles[0].Md5, MD5Bytes(row.expected)) << row.name;
    }
}

TEST_F(Finish, SiteTagsReachTextFilesOfAnyLanguage) {
    SaveShowAPIlogo(false);
    Load(TemplateBuilder(), QString(kRows) + "corp; Phone; %%CORPINFO.ZONE%%\n");
    CorpInfoData.Address = "Rúa 1\r\nBajo";
    const struct {
        const char* text;
        std::string expected;
    } cases[] = {
        {"%%CORPINFO.NAME%%", "Casa \xd1"},
        {"%%CORPINFO.ADDRESS%%", "R\xfa"
                                 "a 1<br>Bajo"},
        {"%%CORPINFO.PHONE%%", "Vigo"}, // the zone is replaced last
        {"%%CORPINFO.MRINFO.0%%%%CORPINFO.MRINFO.6%%%%CORPINFO.MRINFO.7%%",
         "Lugo7%%CORPINFO.MRINFO.7%%"},
        {"%%HIDELOGOAPI%%.START x %%HIDELOGOAPI%%.END", "<!-- x -->"},
        {"%%LASTUPDATE%%", ShortDateText(Now().date()).toStdString()},
        {"%%VERSION%%", "1.1.19"},
        {"%%CORPINFO.NAME%%.DOCWRITE", "document.writeln('Casa \xd1');\r\n"},
    };
    for (const char* lang : {"", "ES"}) {
        for (const auto& row : cases) {
            EXPECT_EQ(Finished(row.text, lang), row.expected) << row.text << lang;
        }
    }
    SaveShowAPIlogo(true);
    EXPECT_EQ(Finished("%%HIDELOGOAPI%%.START-%%HIDELOGOAPI%%.END"), "-");
}

TEST_F(Finish, NeutralFilesKeepWhatBelongsToALanguage) {
    Load(TemplateBuilder(), kRows, "ES|EN");
    Add("a%LID%.js", "", "%LID%%%FIELDDEF0%%%%LEMA%%");
    Add("a%LID%.js", "EN", "%LID%%%FIELDDEF0%%%%LEMA%%");
    Add("a%LID%.gif", "EN", QByteArray("\0%LID%", 6));
    FinishSite(Snapshot());
    EXPECT_EQ(Names(), "a%LID%.js aEN.js a%LID%.gif");
    EXPECT_TRUE(OutputFiles[0].Data.endsWith("%LID%%%FIELDDEF0%%%%LEMA%%"));
    EXPECT_TRUE(OutputFiles[1].Data.endsWith("\r\nENNote-"));
    EXPECT_EQ(OutputFiles[2].Data, QByteArray("\0%LID%", 6));
    EXPECT_EQ(OutputFiles[2].Md5, MD5Bytes(OutputFiles[2].Data));
}

// Each value holds the tags of what comes after it and of what came before it.
TEST_F(Finish, OrderDecidesWhatIsExpandedInsideWhat) {
    TemplateBuilder design;
    design.Emphasis(1, 0)
        .Add(kKindColorSets, "", "", "PARAMS=COLOR;<!--STYLE1 COLOR=%%ZONES%%COLOR; STYLE1-->")
        .AddList(kKindZoneList, "%%ZONES%%", "z%%CORPINFO.NAME%%COLOR", "", "%%C%%")
        .AddList(kKindChoiceList, "%%C%%", "c%%SEL%%", "", "%%ZONES%%", "FIELDDEFID=0;")
        .AddList(kKindLanguageSelector, "%%SEL%%", "s", "%LID%", "%%E1%%%%C%%")
        .AddList(kKindEmphasis1, "%%E1%%", "e", "%%PRICEAMOUNT%%", "%LID%%%E2%%%%SEL%%")
        .AddList(kKindEmphasis2, "%%E2%%", "f%%LEMA%%", "", "")
        .Add(kKindLanguages, "ES|EN", "", "%%ACONSULTAR%%|Consultar|Ask");
    Load(design, kRows, "ES|EN");
    LoadLanguageStrings();
    LoadStyles();
    BuildZoneList(Snapshot());
    BuildChoiceLists(Snapshot());
    BuildEmphasisBlocks(Snapshot());
    EXPECT_EQ(Finished("COLOR"), "zCasa \xd1"
                                 "COLORcsESENeConsultarESfSiempre%%SEL%%%%C%%%%ZONES%%"
                                 "COLOR");
    EXPECT_EQ(Finished("%%E1%%", "EN"), "eAskENf-%%SEL%%");
}

TEST_F(Finish, TagOfAnEmptyChoiceListStays) {
    Load(TemplateBuilder().AddList(kKindChoiceList, "%%C%%", "", "x", "", "FIELDDEFID=0;"), kRows);
    BuildChoiceLists(Snapshot());
    EXPECT_EQ(Finished("%%C%%"), "%%C%%");
}

TEST_F(Finish, BytesBehindANulBecomeZeroAndAnEmptyTextOneZero) {
    Load(TemplateBuilder(), kRows);
    EXPECT_EQ(Finished(QByteArray("%LID%\0abc", 9)), std::string("ES\0\0\0\0", 6));
    EXPECT_EQ(Finished(QByteArray(1, '\0')), std::string(1, '\0'));
    EXPECT_EQ(Finished(""), std::string(1, '\0'));
}

TEST_F(Finish, CancelLeavesTheFilesAsTheyWere) {
    Load(TemplateBuilder(), kRows);
    Add("a.html", "ES", "%LID%");
    SetAbortPublish(true);
    FinishSite(Snapshot());
    EXPECT_EQ(OutputFiles[0].Data, "%LID%");
    EXPECT_EQ(OutputFiles[0].Md5, "");
}
