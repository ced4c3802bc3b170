// The program without its window, run as a scheduled run starts it: a process of its own, the
// user's settings file, a catalogue on disk.
#include "platform/instance.h"
#include "tests/support/files.h"
#include "tests/support/templatebuilder.h"
#include "tests/support/testpictures.h"
#include "tests/support/userhome.h"

#include <QDir>
#include <gtest/gtest.h>

namespace {

constexpr char kProduct[] =
    "INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES"
    " (10001, 'TAZ-01', 16.5, 0, 'Mesa', '2026-10-12T18:20:05');"
    "INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath) VALUES"
    " (10001, 1, 1000101, 0, 'Pic1000101.dat');";

class Publish : public testing::Test {
protected:
    void SetUp() override {
        home.MakeCatalogue("data", kProduct);
        home.Write("data/Pic1000101.dat", MakeJpeg(FourFields({80, 60})));
        TemplateBuilder()
            .Add(2, "p%%PRID%%.htm", "", "<p>%%PRODUCTREF%%</p>")
            .Add(3, "index.html", "", "<p>inicio</p>")
            .Add(12, "%%PICTUREID%%.jpg", "RESIZE=40X30;", "")
            .Add(21, "ES", "", "")
            .Write(Data(), "Default.zdt");
        Settings({});
    }

    QString Data() const { return home.Path("data/"); }

    void Settings(const QByteArray& lines) const { home.Settings("TemplateLangs=ES\n" + lines); }

    // Exit code; what it says goes to `said` and `complaint`.
    int Run(const QStringList& options = {}, const QString& program = PUBLISH) {
        const ToolRun run = RunTool(program, options, home.Environment());
        said = run.said;
        complaint = run.complaint;
        return run.code;
    }

    // Every file below the user's folders but the running program's lock.
    QStringList Files() const {
        QStringList files;
        for (const char* folder : {"config/Lumenta", "data", "data/temp"}) {
            const QDir place(home.Path(folder));
            for (const QString& name : place.entryList(QDir::Files | QDir::Hidden)) {
                files += QString(folder) + '/' + name;
            }
        }
        return files;
    }

    UserHome home;
    QString said;
    QString complaint;
};

// Runs that must fail: name, what is done to the catalogue first, settings, and what the user
// reads.
class PublishRefusal : public Publish, public testing::WithParamInterface<QStringList> {
protected:
    void Spoil(const QString& how) const {
        const QString path = Data() + how.section(' ', 1);
        if (how.startsWith("cut ")) {
            QFile::resize(path, 700);
        } else if (!how.isEmpty()) {
            QFile::remove(path);
        }
        if (how.startsWith("replace ")) {
            home.Write("other.sql", "CREATE TABLE ProductFieldDef (FieldDefId INTEGER);");
            RunTool(MAKESTORE, {path, home.Path("other.sql")});
        }
    }
};

INSTANTIATE_TEST_SUITE_P(All, PublishRefusal, testing::ValuesIn(ReadTable(TABLES, "refusals")),
                         [](const auto& tested) { return tested.param[0].toStdString(); });

} // namespace

TEST_P(PublishRefusal, FailsWithAClearLineAndKeepsSettings) {
    Spoil(GetParam()[1]);
    Settings(GetParam()[2].toUtf8());
    const QByteArray before = home.SettingsText();
    EXPECT_EQ(Run(), 1) << said.toStdString();
    for (const QString& line : GetParam().mid(3)) {
        EXPECT_TRUE(complaint.contains(line)) << complaint.toStdString();
    }
    EXPECT_EQ(home.SettingsText(), before);
    EXPECT_FALSE(Files().contains("data/temp/index.html"));
}

TEST_F(Publish, WritesTheSiteTellsItsStepsAndKeepsTheMoment) {
    EXPECT_EQ(Run(), 0) << complaint.toStdString();
    EXPECT_EQ(complaint, "");
    EXPECT_EQ(said, "1. Generar el Contenido Web...\n"
                    "1. Generar el Contenido Web: hecho\n"
                    "2. Comprobar y Listar los cambios...\n"
                    "2. Comprobar y Listar los cambios: hecho\n"
                    "3. Guardar los Ficheros en Carpeta Local...\n"
                    "3. Guardar los Ficheros en Carpeta Local: hecho\n"
                    "La web se ha publicado: " +
                        Data() + "temp/index.html\n");
    EXPECT_EQ(home.Read("data/temp/p10001.htm"), "<p>TAZ-01</p>");
    EXPECT_EQ(QImage(home.Path("data/temp/1000101.jpg")).size(), QSize(40, 30));
    EXPECT_TRUE(home.SettingsText().contains("\nLastWebUpdate="));
}

TEST_F(Publish, OddSettingsCountAsTheirDefaults) {
    Settings("StorageMethod=dos\nMultiUser=quizás\n[UI]\nUIPassword=secreto\n[Templates]\n"
             "TemplColorSet=azul\nTemplMaxEmph=\n");
    EXPECT_EQ(Run(), 0) << complaint.toStdString();
    EXPECT_TRUE(Files().contains("data/temp/index.html"));
    EXPECT_TRUE(home.SettingsText().contains("\nStorageMethod=0\n"));
    EXPECT_TRUE(home.SettingsText().contains("UIPassword=secreto\n"));
}

TEST_F(Publish, AnAgencysSiteIsPublishedWhateverBecomesOfThePortal) {
    QFile::copy(PUBLISH, home.Path("publish"));
    WriteAgencyFlavour(home.Path());
    home.Settings("TemplateLangs=ES\n", "data", "Zandora");
    EXPECT_EQ(Run({}, home.Path("publish")), 0) << complaint.toStdString();
    EXPECT_TRUE(said.contains("\n4. Sincronizar con Vestalia: ERROR\nLa web se ha publicado"));
    EXPECT_EQ(complaint, "Falta el usuario de Vestalia: Configuración, Otras Webs.\n");
}

// The defaults point beside the program, where a test may not publish.
TEST_F(Publish, ADamagedSettingsFileIsLeftAloneWhenTheRunFails) {
    const QByteArray damaged("\0\1\2", 3);
    home.Write("config/Lumenta/settings.ini", damaged);
    QFile::copy(PUBLISH, home.Path("publish"));
    EXPECT_EQ(Run({}, home.Path("publish")), 1);
    EXPECT_TRUE(complaint.contains("/Data/Zandora.zdb existe")) << complaint.toStdString();
    EXPECT_EQ(home.SettingsText(), damaged);
}

TEST_F(Publish, OptionsAndAnOpenProgramAreRefusedBeforeAnythingIsTouched) {
    const QStringList before = Files();
    for (const QStringList& options : {QStringList{"--help"}, QStringList{"-style", "fusion"}}) {
        EXPECT_EQ(Run(options), 1);
        EXPECT_TRUE(complaint.contains("no admite opciones")) << complaint.toStdString();
    }
    const QByteArray usual = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", home.Path("run").toUtf8());
    ASSERT_TRUE(ClaimInstance());
    EXPECT_EQ(Run(), 1);
    ReleaseInstance();
    qputenv("XDG_RUNTIME_DIR", usual);
    EXPECT_TRUE(complaint.contains("Lumenta: El programa ya está abierto"))
        << complaint.toStdString();
    EXPECT_EQ(said, "");
    EXPECT_EQ(Files(), before);
}
