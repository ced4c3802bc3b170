// From the start of the process to its end, as processes of their own with a user at hand
// (starter.cpp).
#include "tests/support/ftpserver.h"
#include "tests/support/httppeer.h"
#include "tests/support/templatebuilder.h"
#include "tests/support/userhome.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTest>
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
        home.MakeCatalogue("data", kProduct);
        home.Settings({});
    }

    // What the user saw, a window a line; the exit code goes to `code`.
    QString Run(const QStringList& actions, const QString& path = STARTER) {
        const ToolRun run = RunTool(path, actions, home.Environment());
        code = run.code;
        return run.said;
    }

    void Start(QProcess& program, const QStringList& actions) const {
        program.setProcessEnvironment(home.Environment());
        program.start(STARTER, actions);
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

    UserHome home;
    int code = -1;
};

const QString kOpen = "main Lumenta, menu &Nuevo Producto, rows 1, other webs hidden, refresh off, "
                      "maximised\n";

} // namespace

TEST_F(Startup, OpensTheCatalogueAndKeepsSettingsWhenItIsClosed) {
    home.Settings("StoragePath=/srv/web\nMultiUser=1\n");
    EXPECT_EQ(Run({"close"}), QString(kOpen).replace("off", "on"));
    EXPECT_EQ(code, 0);
    EXPECT_TRUE(QString(home.SettingsText()).contains("\nStoragePath=/srv/web/\n"));
    EXPECT_TRUE(QString(home.SettingsText()).contains("\nLoanInterest=3.5\n"));
}

TEST_F(Startup, LosingTheScreenWithTheCatalogueOpenEndsInOrder) {
    EXPECT_EQ(Run({"exit"}), kOpen);
    EXPECT_EQ(code, 1); // nothing has crashed on the way out
}

TEST_F(Startup, ClosesAnEmptyCatalogueAndRefusesAnEmptyReference) {
    home.MakeCatalogue("empty");
    home.Settings({}, "empty");
    EXPECT_EQ(Run({"close"}), QString(kOpen).replace("rows 1", "rows 0"));
    EXPECT_EQ(code, 0);

    home.Settings({});
    const QString seen = Run({"reference=", "close", "ok", "reference=TAZ-2", "close"});
    EXPECT_EQ(code, 0);
    EXPECT_TRUE(seen.contains("box warning Lumenta: El campo Referencia es obligatorio\nmain "))
        << seen.toStdString();
    EXPECT_TRUE(home.Read("data/Zandora.zdb").contains("TAZ-2"));
}

TEST_F(Startup, AsksForThePasswordUntilItIsRightOrCancelled) {
    const QString login =
        "login Lumenta: Por favor, introduzca la Contraseña para acceder a Lumenta:\n";
    const QString wrong = "box warning Lumenta: Contraseña incorrecta\n";
    home.Settings("[UI]\nUIPassword=Secreto\n");
    EXPECT_EQ(Run({"password=secreto", "ok", "password=Secreto", "close"}),
              login + wrong + login + kOpen);
    EXPECT_EQ(code, 0);
    home.Settings("[UI]\nUIPassword=Secreto\n", "nowhere");
    EXPECT_EQ(Run({"password=", "ok", "cancel"}), login + wrong + login);
    EXPECT_TRUE(QString(home.SettingsText()).contains("/nowhere/\n[UI]"));
}

TEST_F(Startup, AStoreThatDoesNotOpenIsLookedForInTheConfiguration) {
    home.Settings({}, "empty");
    const QString failed =
        QString("box critical Lumenta: No se ha podido abrir la Base de Datos.\n"
                "Asegúrese que el fichero %1/Zandora.zdb existe y que tiene acceso al mismo.\n\n"
                "Pulse Sí para comprobar en Configuración dónde se encuentra la Base de Datos.\n"
                "Pulse No para salir del programa.\n")
            .arg(home.Path("empty"));
    EXPECT_EQ(Run({"no"}), failed);
    EXPECT_NE(code, 0);
    const QString config = "config page 2, nothing to move\n";
    EXPECT_EQ(Run({"yes", "cancel", "yes", "folder=" + home.Path("data"), "close"}),
              failed + config + failed + config + kOpen);
    EXPECT_EQ(code, 0);
    EXPECT_TRUE(QString(home.SettingsText()).contains("DBpath=" + home.Path("data") + "/\n"));
}

TEST_F(Startup, AnotherStartBringsTheRunningProgramUpAndEnds) {
    home.Settings("[UI]\nUIPassword=Secreto\n");
    QProcess first;
    Start(first, {});
    EXPECT_TRUE(NextLine(first).startsWith("login Lumenta"));
    const QString before = QString(home.SettingsText());
    EXPECT_EQ(Run({}), "");
    EXPECT_EQ(code, 0);
    EXPECT_EQ(QString(home.SettingsText()), before);
    first.kill();
    ASSERT_TRUE(first.waitForFinished(kPatience));

    home.Settings({});
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
        .Write(home.Path("data"), "Default.zdt");
    home.Settings("StorageMethod=1\nFTPServer=127.0.0.1\nFTPPath=/web\n");
    QElapsedTimer time;
    time.start();
    Run({"publish=" + QString::number(server.Port()), "sending", "close"});
    EXPECT_LT(time.elapsed(), kCloseLimit);
    EXPECT_EQ(code, 0);
    EXPECT_EQ(server.Record().sessions, 1);
    EXPECT_TRUE(QString(home.SettingsText()).contains("\nLastWebUpdate=\n"));
}

// A form that can't be left keeps the installer from being started.
TEST_F(Startup, AnAcceptedUpdateIsStartedWhenAllIsSavedAndEndsTheProgram) {
    HttpPeer peer;
    peer.answers["updates/fileversion.txt"] = HttpAnswer("202611250000");
    peer.answers["updates/update.exe"] = HttpAnswer("#!/bin/sh\n: >\"$0.ran\"\n");
    const QString mark = home.Path("data/update.exe.ran");
    for (const QString reference : {"", "TAZ-9"}) {
        QProcess program;
        QStringList actions = {"reference=" + reference, "update=" + peer.Host(), "yes"};
        Start(program, actions + (reference.isEmpty() ? QStringList{"ok"} : QStringList{}));
        const auto ended = [&] { return program.state() == QProcess::NotRunning; };
        QByteArray said;
        const auto refused = [&] {
            said += program.readAllStandardOutput();
            return said.contains("obligatorio");
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return ended() || refused(); }, kPatience));
        EXPECT_EQ(ended(), !reference.isEmpty());
        EXPECT_EQ(QTest::qWaitFor([&] { return QFile::exists(mark); }, ended() ? kPatience : 0),
                  !reference.isEmpty());
        EXPECT_EQ(home.Read("data/Zandora.zdb").contains("TAZ-9"), !reference.isEmpty());
        program.kill();
        program.waitForFinished(kPatience);
    }
}

TEST_F(Startup, AFlavourFileBesideTheProgramChangesNounsTitleAndMenu) {
    RunTool(MAKESECTOR, {DELIVERY "inmobiliaria.txt", home.Path("sector.dat")});
    ASSERT_TRUE(QFile::copy(STARTER, home.Path("program")));
    home.Settings({}, "data", "Zandora");
    EXPECT_EQ(Run({"close"}, home.Path("program")),
              "main Zandora, menu &Nuevo Inmueble, rows 1, other webs shown, refresh off, "
              "maximised\n");
    EXPECT_EQ(code, 0);
}
