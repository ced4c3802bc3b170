#include "core/settings.h"
#include "forms/mainform.h"
#include "publish/generate.h"
#include "tests/designs/sitechecks.h"
#include "tests/support/catalogue.h"
#include "tests/support/userhome.h"
#include "text/ansi.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QStringList FoldersOf(const QString& path) {
    return QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

void Make(const QString& program, const QStringList& arguments,
          const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment()) {
    const ToolRun run = RunTool(program, arguments, environment);
    EXPECT_EQ(run.code, 0) << run.complaint.toStdString();
}

// A user with a copy of a sample's catalogue.
class Publisher {
public:
    explicit Publisher(const QString& sample) {
        for (const QFileInfo& file : QDir(sample).entryInfoList(QDir::Files | QDir::Hidden)) {
            QFile::copy(file.filePath(), home.Path("data/" + file.fileName()));
        }
    }

    // The site in a fresh folder.
    QDir Publish(const QString& design, const QString& languages) {
        const QString site = home.Path(QString("site%1/").arg(++sites));
        home.Settings(QString("StoragePath=%1\nUserLangs=%2\nDefaultLang=%3\n[Templates]\n"
                              "TemplPath=%4\n")
                          .arg(site, languages, languages.left(2), design)
                          .toUtf8());
        Make(PUBLISH, {}, home.Environment());
        return QDir(site);
    }

private:
    UserHome home;
    int sites = 0;
};

// Pictures cost time and are the same in all languages: languages are varied where there are none.
QStringList LanguagesFor(const QString& sample) {
    const bool hasPictures = !QDir(sample).entryList({"Pic*.dat"}).isEmpty();
    return hasPictures ? QStringList{"ES|EN|DE|FR"} : QStringList{"FR|ES", "DE"};
}

// A design of ours, packed.
QString Pack(const QString& design, const QTemporaryDir& folder) {
    const QString file = folder.filePath(design + ".zdt");
    Make(PACKDESIGN, {DESIGNS_FOLDER "/" + design, file});
    return file;
}

void ExpectWhole(const QDir& site) {
    EXPECT_TRUE(site.exists("index.html"));
    EXPECT_EQ(FindTagsLeft(site).join('\n').toStdString(), "");
    EXPECT_EQ(FindBrokenLinks(site).join('\n').toStdString(), "");
    EXPECT_EQ(FindMalformedPages(site).join('\n').toStdString(), "");
}

} // namespace

TEST(Designs, EveryDesignMakesAWholeSiteOfEverySample) {
    const QStringList samples = FoldersOf(SAMPLES_FOLDER);
    const QStringList designs = FoldersOf(DESIGNS_FOLDER);
    ASSERT_FALSE(samples.isEmpty() || designs.isEmpty());
    QTemporaryDir packed;
    for (const QString& sample : samples) {
        const QString folder = SAMPLES_FOLDER "/" + sample;
        Publisher publisher(folder);
        for (const QString& design : designs) {
            const QString file = Pack(design, packed);
            for (const QString& languages : LanguagesFor(folder)) {
                SCOPED_TRACE((design + " on " + sample + " in " + languages).toStdString());
                ExpectWhole(publisher.Publish(file, languages));
            }
        }
    }
}

// Quotes in a title are in attributes, in headings and, on the sheet, beside a picture.
TEST(Designs, PagesOfAProductTakeQuotesAndItsSheetShowsValuesWithoutGaps) {
    const MainForm form;
    TestCatalogue catalogue("def; 0; T; ESMarca#ENBrand\n"
                            "def; 1; T; ESMaterial#ENMaterial\n"
                            "def; 2; B; ESA mano#ENHandmade\n"
                            "def; 3; O; ESColor#ENColour; ESRojo#ENRed|ESVerde#ENGreen\n"
                            "product; 10001; T-1; 12.5; 0; Centro; 2024-01-01T00:00:00\n"
                            "field; 10001; 0;\n"
                            "field; 10001; 1; Gres\n"
                            "field; 10001; 2; 0\n"
                            "field; 10001; 3; 1\n"
                            "textdef; Products; 0; ShortDesc\n"
                            "textdef; Products; 1; LongDesc\n"
                            "textdef; Products; 2; Category\n"
                            "text; Products; 10001; ES; 0; Taza \"Duna\" d'or\n"
                            "text; Products; 10001; EN; 0; Mug");
    SetUserLangs("ES|EN", "ES");
    SetUICurrentLang("ES");
    QTemporaryDir packed;
    for (const QString& design : FoldersOf(DESIGNS_FOLDER)) {
        SCOPED_TRACE(design.toStdString());
        const QString packedDesign = Pack(design, packed);
        QString page;
        for (const PreviewPage kind : {PreviewPage::Product, PreviewPage::Layout}) {
            page = GeneratePreviewPage({kind, "10001"}, packedDesign, catalogue.Snapshot());
            EXPECT_EQ(FindTagsLeft(QFileInfo(page).dir()).join('\n').toStdString(), "");
            EXPECT_EQ(FindMalformedPages(QFileInfo(page).dir()).join('\n').toStdString(), "");
        }
        QFile file(page);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << page.toStdString();
        const QString text = QString::fromLatin1(file.readAll());
        EXPECT_EQ(text.count("<tr><td>"), 2);
        EXPECT_TRUE(text.contains("<tr><td>Gres</td><th scope='row'>Material</th></tr>"));
        EXPECT_TRUE(text.contains("<tr><td>Verde</td><th scope='row'>Color</th></tr>"));
    }
}

constexpr char kHomes[] = "def; 0; T; ESSuperficie#ENFloor area\n"
                          "def; 1; O; ESTipo#ENType; ESPisos#ENFlats|ESAlquiler#ENTo let\n"
                          "product; 10001; T-1; 850; 0; Oliva-\"Racons\"; 2024-01-01T00:00:00\n"
                          "field; 10001; 0; 1.200\n"
                          "field; 10001; 1; 1\n"
                          "product; 10002; T-2; 85000; 0; L'Alfàs; 2024-01-01T00:00:00\n"
                          "field; 10002; 0; 90\n"
                          "field; 10002; 1; 0\n"
                          "product; 10003; T-3; 700; 0; L'Alfàs; 2024-01-01T00:00:00\n"
                          "field; 10003; 0;\n"
                          "field; 10003; 1; 1\n"
                          "textdef; Products; 0; ShortDesc\n"
                          "textdef; Products; 1; LongDesc";

TEST(Designs, HomesOfTheAgencyShowRentsByTheMonthAndSizesInMetres) {
    const MainForm form;
    TestCatalogue catalogue(kHomes);
    SetUserLangs("ES|EN", "ES");
    SetUICurrentLang("ES");
    QTemporaryDir packed;
    const QString design = Pack("inmobiliaria", packed);
    const struct {
        PreviewRequest request;
        const char* rent; // behind the price
        const char* size; // "" for a page that shows none
    } cases[] = {
        {{PreviewPage::Product, "10001"},
         "</span><span class=\"rent\">/mes</span></p>",
         "1.200</span> <span"},
        {{PreviewPage::Product, "10002"},
         "</span><span hidden>Pisos</span></p>",
         "90</span> <span"},
        {{PreviewPage::Layout, "10001"},
         "</span> €<span hidden>1.200</span><span class=\"rent\">/mes</span>",
         "<td>1.200&nbsp;m²</td>"},
        {{PreviewPage::Layout, "10003"}, "</span> €<span class=\"rent\">/mes</span>", ""},
    };
    for (const auto& [request, rent, size] : cases) {
        SCOPED_TRACE(request.productId.toStdString());
        const QString page = GeneratePreviewPage(request, design, catalogue.Snapshot());
        QFile file(page);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << page.toStdString();
        const QString text = FromAnsi(file.readAll());
        EXPECT_TRUE(text.contains(rent)) << text.toStdString();
        EXPECT_TRUE(text.contains(size)) << text.toStdString();
        EXPECT_EQ(FindMalformedPages(QFileInfo(page).dir()).join('\n').toStdString(), "");
    }
}
