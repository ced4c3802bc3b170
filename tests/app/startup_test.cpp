// From the start of the process to its end, as processes of their own with a user at hand
// (starter.cpp).
#include "tests/support/files.h"

#include "tests/support/ftpserver.h"
#include "tests/support/templatebuilder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <gtest/gtest.h>

namespace {

constexpr int kPatience = 20000;  // milliseconds
constexpr int kCloseLimit = 5000; // milliseconds, start and all

constexpr char kProduct[] =
    "INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES"
    " (10001, 'TAZ-01', 16.5, 0, 'Mesa', '2026-10-12T18:20:05');";

class Startup : public testing::Test {
protected:
    void SetUp() override {
        for (const char* folder : {"config/Lumenta", "config/Zandora", "run", "data", "empty"}) {
            QDir(home.path()).mkpath(folder);
        }
        QFile::setPermissions(home.filePath("run"),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        Write("product.sql", kProduct);
        Make("data", {home.filePath("product.sql")});
        Settings({});
    }

    void Write(const QString& name, const QByteArray& bytes) const {
        WriteFile(home.filePath(name), bytes);
    }

    QByteArray Read(const QString& name) const { return ReadFile(home.filePath(name)); }

    void Make(const QString& folder, const QStringList& more) const {
        QProcess::execute(MAKESTORE,
                          QStringList{home.filePath(folder) + "/Zandora.zdb", DELIVERY "schema.sql",
                                      DELIVERY "languages.sql", DELIVERY "texts.sql"} +
                              more);
    }

    void Settings(const QByteArray& lines, const QString& folder = "data",
                  const QString& application = "Lumenta") const {
        Write("config/" + application + "/settings.ini",
              "[Params]\nDBpath=" + home.filePath(folder).toUtf8() + "/\n" + lines);
    }

    QString SettingsText() const { return Read("config/Lumenta/settings.ini"); }

    void Start(QProcess& program, const QStringList& actions, const QString& path = STARTER) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", home.filePath("config"));
        environment.insert("XDG_RUNTIME_DIR", home.filePath("run"));
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::SeparateChannels);
        program.start(path, actions);
    }

    // What the user saw, a window a line; the exit code goes to `code`.
    QString Run(const QStringList& actions, const QString& path = STARTER) {
        QProcess program;
        Start(program, actions, path);
        EXPECT_TRUE(program.waitForFinished(kPatience)) << program.readAll().toStdString();
        code = program.exitCode();
        return QString::fromUtf8(program.readAllStandardOutput());
    }

    // Waits for the next line.
    static QString NextLine(QProcess& program) {
        while (!program.canReadLine()) {
            if (!program.waitForReadyRead(kPatience)) {
                return "nothing";
            }
        }
        return QString::fromUtf8(program.readLine()).trimmed();
    }

    QTemporaryDir home;
    int code = -1;
};

const QString kOpen = "main Lumenta, menu &Nuevo Producto, rows 1, other webs hidden, refresh off, "
                      "maximised\n";

} // namespace

TEST_F(Startup, OpensTheCatalogueAndKeepsSettingsWhenItIsClosed) {
    Settings("StoragePath=/srv/web\nMultiUser=1\n");
    EXPECT_EQ(Run({"close"}), QString(kOpen).replace("off", "on"));
    EXPECT_EQ(code, 0);
    EXPECT_TRUE(SettingsText().contains("\nStoragePath=/srv/web/\n"));
    EXPECT_TRUE(SettingsText().contains("\nLoanInterest=3.5\n"));
}

TEST_F(Startup, LosingTheScreenWithTheCatalogueOpenEndsInOrder) {
    Settings({});
    EXPECT_EQ(Run({"exit"}), kOpen);
    EXPECT_EQ(code, 1); // nothing has crashed on the way out
}

TEST_F(Startup, ClosesAnEmptyCatalogueAndRefusesAnEmptyReference) {
    Make("empty", {});
    Settings({}, "empty");
    EXPECT_EQ(Run({"close"}), QString(kOpen).replace("rows 1", "rows 0"));
    EXPECT_EQ(code, 0);

    Settings({});
    const QString seen = Run({"reference=", "close", "ok", "reference=TAZ-2", "close"});
    EXPECT_EQ(code, 0);
    EXPECT_TRUE(seen.contains("box warning Lumenta: El campo Referencia es obligatorio\nmain "))
        << seen.toStdString();
    EXPECT_TRUE(Read("data/Zandora.zdb").contains("TAZ-2"));
}

TEST_F(Startup, AsksForThePasswordUntilItIsRightOrCancelled) {
    const QString login =
        "login Lumenta: Por favor, introduzca la Contraseña para acceder a Lumenta:\n";
    const QString wrong = "box warning Lumenta: Contraseña incorrecta\n";
    Settings("[UI]\nUIPassword=Secreto\n");
    const QString before = SettingsText();
    EXPECT_EQ(Run({"password=secreto", "ok", "password=Secreto", "close"}),
              login + wrong + login + kOpen);
    EXPECT_EQ(code, 0);
    Settings("[UI]\nUIPassword=Secreto\n", "nowhere");
    EXPECT_EQ(Run({"password=", "ok", "cancel"}), login + wrong + login);
    EXPECT_TRUE(SettingsText().contains("/nowhere/\n[UI]"));
}

TEST_F(Startup, AStoreThatDoesNotOpenIsLookedForInTheConfiguration) {
    Settings({}, "empty");
    const QString failed =
        QString("box critical Lumenta: No se ha podido abrir la Base de Datos.\n"
                "Asegúrese que el fichero %1/Zandora.zdb existe y que tiene acceso al mismo.\n\n"
                "Pulse Sí para comprobar en Configuración dónde se encuentra la Base de Datos.\n"
                "Pulse No para salir del programa.\n")
            .arg(home.filePath("empty"));
    EXPECT_EQ(Run({"no"}), failed);
    EXPECT_NE(code, 0);
    const QString config = "config page 2, nothing to move\n";
    EXPECT_EQ(Run({"yes", "cancel", "yes", "folder=" + home.filePath("data"), "close"}),
              failed + config + failed + config + kOpen);
    EXPECT_EQ(code, 0);
    EXPECT_TRUE(SettingsText().contains("DBpath=" + home.filePath("data") + "/\n"));
}

TEST_F(Startup, AnotherStartBringsTheRunningProgramUpAndEnds) {
    Settings("[UI]\nUIPassword=Secreto\n");
    QProcess first;
    Start(first, {});
    EXPECT_TRUE(NextLine(first).startsWith("login Lumenta"));
    const QString before = SettingsText();
    EXPECT_EQ(Run({}), "");
    EXPECT_EQ(code, 0);
    EXPECT_EQ(SettingsText(), before);
    first.kill();
    ASSERT_TRUE(first.waitForFinished(kPatience));

    Settings({});
    Start(first, {"minimise"});
    EXPECT_EQ(NextLine(first) + '\n', kOpen);
    EXPECT_TRUE(NextLine(first).endsWith("minimised"));
    EXPECT_EQ(Run({}), "");
    EXPECT_TRUE(NextLine(first).endsWith("maximised"));
    first.kill();
    first.waitForFinished(kPatience);
}

TEST_F(Startup, ClosingTheWindowEndsAPublishToAServerThatStandsStill) {
    FtpServer server;
    server.Answer("STOR", {"< 150 Go on", "= *"});
    TemplateBuilder()
        .Add(3, "index.html", "", "<p>inicio</p>")
        .Write(home.filePath("data"), "Default.zdt");
    Settings("StorageMethod=1\nFTPServer=127.0.0.1\nFTPPath=/web\n");
    QElapsedTimer time;
    time.start();
    Run({"publish=" + QString::number(server.Port()), "sending", "close"});
    EXPECT_LT(time.elapsed(), kCloseLimit);
    EXPECT_EQ(code, 0);
    EXPECT_EQ(server.Record().sessions, 1);
    EXPECT_TRUE(SettingsText().contains("\nLastWebUpdate=\n"));
}

TEST_F(Startup, AFlavourFileBesideTheProgramChangesNounsTitleAndMenu) {
    QProcess::execute(MAKESECTOR, {DELIVERY "inmobiliaria.txt", home.filePath("sector.dat")});
    ASSERT_TRUE(QFile::copy(STARTER, home.filePath("program")));
    Settings({}, "data", "Zandora");
    EXPECT_EQ(Run({"close"}, home.filePath("program")),
              "main Zandora, menu &Nuevo Inmueble, rows 1, other webs shown, refresh off, "
              "maximised\n");
    EXPECT_EQ(code, 0);
}
