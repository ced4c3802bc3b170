#include "core/settings.h"
#include "forms/mainform.h"
#include "publish/generate.h"
#include "tests/designs/sitechecks.h"
#include "tests/support/catalogue.h"
#include "tests/support/files.h"
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

// A catalogue whose pages are made as the preview makes them.
class Previews {
public:
    explicit Previews(const char* rows) : catalogue(rows) {
        SetUserLangs("ES|EN", "ES");
        SetUICurrentLang("ES");
    }

    QString Text(const PreviewRequest& request, const QString& design) {
        const QString page = GeneratePreviewPage(request, design, catalogue.Snapshot());
        const QDir site = QFileInfo(page).dir();
        EXPECT_EQ(FindTagsLeft(site).join('\n').toStdString(), "");
        EXPECT_EQ(FindMalformedPages(site).join('\n').toStdString(), "");
        return FromAnsi(ReadFile(page));
    }

private:
    const MainForm form;
    TestCatalogue catalogue;
};

// Quotes in a title are in attributes, in headings and, on the sheet, beside a picture.
constexpr char kCup[] = R"(
    def; 0; T; ESMarca#ENBrand
    def; 1; T; ESMaterial#ENMaterial
    def; 2; B; ESA mano#ENHandmade
    def; 3; O; ESColor#ENColour; ESRojo#ENRed|ESVerde#ENGreen
    product; 10001; T-1; 12.5; 0; Centro; 2024-01-01T00:00:00
    fields; 10001; ; Gres; 0; 1
    textdef; Products; 0; ShortDesc
    textdef; Products; 1; LongDesc
    textdef; Products; 2; Category
    text; Products; 10001; ES; 0; Taza "Duna" d'or
    text; Products; 10001; EN; 0; Mug)";

constexpr char kHomes[] = R"(
    def; 0; T; ESSuperficie#ENFloor area
    def; 1; O; ESTipo#ENType; ESPisos#ENFlats|ESAlquiler#ENTo let
    product; 10001; T-1; 850; 0; Oliva-"Racons"; 2024-01-01T00:00:00
    fields; 10001; 1.200; 1
    product; 10002; T-2; 85000; 0; L'Alfàs; 2024-01-01T00:00:00
    fields; 10002; 90; 0
    product; 10003; T-3; 700; 0; L'Alfàs; 2024-01-01T00:00:00
    fields; 10003; ; 1
    textdef; Products; 0; ShortDesc
    textdef; Products; 1; LongDesc)";

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

TEST(Designs, PagesOfAProductTakeQuotesAndItsSheetShowsValuesWithoutGaps) {
    Previews previews(kCup);
    QTemporaryDir packed;
    for (const QString& design : FoldersOf(DESIGNS_FOLDER)) {
        SCOPED_TRACE(design.toStdString());
        const QString file = Pack(design, packed);
        previews.Text({PreviewPage::Product, "10001"}, file);
        const QString sheet = previews.Text({PreviewPage::Layout, "10001"}, file);
        EXPECT_EQ(sheet.count("<tr><td>"), 2);
        EXPECT_TRUE(sheet.contains("<tr><td>Gres</td><th scope='row'>Material</th></tr>"));
        EXPECT_TRUE(sheet.contains("<tr><td>Verde</td><th scope='row'>Color</th></tr>"));
    }
}

TEST(Designs, HomesOfTheAgencyShowRentsByTheMonthAndSizesInMetres) {
    Previews previews(kHomes);
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
        const QString text = previews.Text(request, design);
        EXPECT_TRUE(text.contains(rent) && text.contains(size)) << text.toStdString();
    }
}
