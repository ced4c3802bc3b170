// The update from the timer to the hand-over, against a service on the loopback. What an accepted
// one does to the process stands in startup_test.cpp.
#include "app/update.h"

#include "app/mainscreen.h"
#include "app/updatescreen.h"
#include "app/workflow.h"
#include "core/addresses.h"
#include "core/settings.h"
#include "forms/mainform.h"
#include "platform/events.h"
#include "platform/usersettings.h"
#include "tests/support/boxes.h"
#include "tests/support/files.h"
#include "tests/support/httppeer.h"
#include "tests/support/program.h"
#include "tests/support/templatebuilder.h"
#include "transfer/transfer.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

const QString kPending = "Nueva versión pendiente de descargar";
const QString kNoNewVersion = "No existen nuevas versiones";
const QString kNotDownloaded = "No se ha podido descargar la nueva versión";
const QString kNotVerified = "La nueva versión no se ha podido comprobar";
const QString kAsked = "Hay una nueva versión del programa. ¿Deseas actualizar la aplicación?";

// Tells where it was started from. Signed with the key.
const QByteArray kInstaller = "#!/bin/sh\necho \"$0\" >\"$0.ran\"\n";
const QByteArray kSignature =
    QByteArray::fromBase64("ZiwR0n8qb2IVYaGtixYgHFZNS8egf0mZ7NX4w6GDPAyTHFvCgKE711mpmEU0KD6R"
                           "X1Tqeq09pV+NfVN8Fu0fBw==");
const QString kKey = "GSx+sKQSTGn+zzk56R8iyBZhOTwoRuf/mFDqf8+Q+1U=";

class UpdateTest : public testing::Test {
protected:
    UpdateTest() : boxes(QMessageBox::Yes) {
        Maker.updateService = peer.Host();
        SaveSetting("Lumenta", "Params", "UpdateCompiledVersion", "202611240000");
        ConnectPublish();
        ConnectUpdate();
        Serve("fileversion.txt", HttpAnswer("202611250000"));
    }
    void TearDown() override { Maker = {}; }

    void Serve(const QByteArray& file, const QByteArray& answer) {
        peer.answers["updates/" + file] = answer;
    }

    static QByteArray Answer(const QStringList& row) {
        return row[0].isEmpty()
                   ? ""
                   : HttpAnswer(row[2].toLatin1(), row[0].toLatin1(), row[1].toLatin1());
    }

    // As six seconds after the start.
    void Check() {
        boxes.seen.clear();
        peer.asked.clear();
        frmMain->show();
        frmMain->lblUpdate->clear();
        frmMain->tmrUpdate->start(0);
    }

    static bool Shows(const QString& text) {
        return QTest::qWaitFor([&] { return frmMain->lblUpdate->text() == text; });
    }

    bool Asks(const QByteArray& file) const {
        return QTest::qWaitFor([&] { return peer.asked.contains("updates/" + file); });
    }

    // So that what must not come has had its chance.
    static void LetThreeLooksPass() {
        QTimer clock;
        clock.start(50);
        QSignalSpy ticks(&clock, &QTimer::timeout);
        EXPECT_TRUE(QTest::qWaitFor([&] { return ticks.size() >= 3; }));
    }

    static bool Disabled() {
        return !frmMain->fraProductInfo->isEnabled() && !frmMain->mnuExit->isEnabled() &&
               frmMain->cmdUpdateWeb[0]->isEnabled();
    }
    static bool IsFree() { return frmMain->fraProductInfo->isEnabled(); }

    // Files of the update in the catalogue's folder.
    std::string Files() const {
        return QDir(program.Folder()).entryList({"update*"}).join(' ').toStdString();
    }

    QString Final() const { return program.Folder() + "update.exe"; }

    bool Ran() const {
        return QTest::qWaitFor(
                   [&] { return ReadFile(Final() + ".ran") == Final().toUtf8() + '\n'; }) &&
               !frmMain->isVisible();
    }

    TestProgram program;
    HttpPeer peer;
    BoxAnswers boxes;
};

} // namespace

TEST_F(UpdateTest, OnlyALaterVersionOfTwelveCharactersIsOffered) {
    for (const QStringList& row : ReadTable(UPDATES, "answer, installed version, label")) {
        const bool offered = row[4] == kPending;
        SaveSetting("Lumenta", "Params", "UpdateCompiledVersion", row[3]);
        Serve("fileversion.txt", Answer(row));
        Check();
        EXPECT_TRUE(Shows(row[4])) << row.join(" ").toStdString();
        EXPECT_FALSE(frmMain->tmrUpdate->isActive());
        EXPECT_EQ(offered && Asks("update.exe"), offered);
        EXPECT_EQ(peer.asked.size(), offered ? 2 : 1);
        EXPECT_TRUE(QTest::qWaitFor(IsFree));
    }
    for (const char* service : {"", "127.0.0.1:1", "file:///etc"}) {
        Maker.updateService = service;
        Check();
        EXPECT_TRUE(Shows(kNoNewVersion)) << service;
        EXPECT_EQ(peer.asked.size() + qsizetype(boxes.seen.size()), 0);
    }
}

TEST_F(UpdateTest, ALetterTypedIntoTheQuestionIsNoAnswerAndEnterIsNo) {
    qApp->removeEventFilter(&boxes);
    bool stands = false;
    WhenDialogOpens([&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->windowTitle(), "Actualización");
        EXPECT_EQ(box->text(), kAsked);
        EXPECT_EQ(box->icon(), QMessageBox::Information);
        QTest::keyClick(box, Qt::Key_S);
        LetThreeLooksPass(); // a button that is pressed this way goes down for a while
        stands = box->isVisible();
        QTest::keyClick(box, Qt::Key_Return);
    });
    Check();
    EXPECT_TRUE(QTest::qWaitFor([&] { return stands; }));
    LetThreeLooksPass();
    EXPECT_EQ(frmMain->lblUpdate->text(), kPending);
    EXPECT_EQ(peer.asked.size(), 1);
}

TEST_F(UpdateTest, TheLabelCountsChunksAndACutGivesTheScreensBack) {
    peer.waits = true;
    Serve("update.exe", "HTTP/1.1 200 OK\r\nContent-Length: 2562\r\n\r\n" + QByteArray(1025, 'a'));
    Type(frmMain->txtProductRef, "NUEVA");
    Check();
    EXPECT_TRUE(Shows("Descargando nueva versión     (0 Kb / 3 Kb)   0 % "));
    EXPECT_TRUE(UpdateDownloading);
    EXPECT_TRUE(Disabled());
    EXPECT_TRUE(Files().starts_with("update.exe.") && Files().ends_with(".nuevo")) << Files();
    peer.Say(QByteArray(1023, 'b'));
    EXPECT_TRUE(Shows("Descargando nueva versión     (1 Kb / 3 Kb)   40 % "));
    peer.HangUp();
    EXPECT_TRUE(Shows(kNotDownloaded));
    EXPECT_TRUE(QTest::qWaitFor(IsFree));
    EXPECT_EQ(frmMain->focusWidget(), frmMain->txtProductRef);
    EXPECT_EQ(frmMain->txtProductRef->text(), "NUEVA");
    EXPECT_EQ(Files(), "");
}

TEST(UpdateProgress, CountsChunksOf1024AndRoundsHalvesToEven) {
    for (const QStringList& row : ReadTable(UPDATES, "bytes, of them, ended, label")) {
        EXPECT_EQ(ProgressText(row[0].toInt(), row[1].toInt(), !row[2].isEmpty()), row[3]);
    }
}

TEST_F(UpdateTest, ADownloadThatFailsStartsNothingAndLeavesNothing) {
    const auto expect = [&](const QByteArray& answer, const QString& label, const QString& box) {
        Serve("update.exe", answer);
        Check();
        EXPECT_TRUE(Asks("update.exe") && Shows(label)) << answer.left(99).constData();
        EXPECT_TRUE(QTest::qWaitFor([&] { return boxes.Texts().endsWith(box); }));
        LetThreeLooksPass();
        EXPECT_EQ(frmMain->lblUpdate->text(), label) << answer.left(99).constData();
        EXPECT_TRUE(QTest::qWaitFor(IsFree));
        EXPECT_EQ(Files(), "");
    };
    for (const QStringList& row : ReadTable(UPDATES, "answer, label, box")) {
        expect(Answer(row), row[3], row[4].isEmpty() ? kAsked : row[4]);
    }
    const rlimit disk{100'000, RLIM_INFINITY};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &disk);
    expect(HttpAnswer(QByteArray(200'000, 'a')), kNotDownloaded, kAsked);
    const rlimit room{RLIM_INFINITY, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &room);
    SetStoreFolder("/nowhere/");
    expect(HttpAnswer(kInstaller), kNotDownloaded, kAsked);
}

// With a key, what is started is what was signed; without one an older file keeps its tail.
TEST_F(UpdateTest, WithAKeyOnlyWhatIsSignedIsStarted) {
    const QByteArray tail = "# and more\n";
    const QByteArray sound = HttpAnswer(kSignature);
    const struct {
        QString key;
        QByteArray signature;
        bool starts;
    } kCases[] = {
        {"", "", true},
        {kKey, sound, true},
        {kKey, HttpAnswer(kSignature.left(63) + "x"), false},
        {kKey, HttpAnswer(kSignature + "x"), false},
        {kKey, HttpAnswer(kSignature, "404 Not"), false},
        {kKey, "", false},
        {kKey.chopped(4), sound, false},
    };
    Serve("update.exe", HttpAnswer(kInstaller));
    for (const auto& one : kCases) {
        Maker.updateKey = one.key;
        Serve("update.exe.sig", one.signature);
        WriteFile(Final(), kInstaller + tail);
        Check();
        EXPECT_TRUE(one.starts ? Ran() : Shows(kNotVerified)) << one.signature.constData();
        EXPECT_EQ(Files(), one.starts ? "update.exe update.exe.ran" : "");
        EXPECT_EQ(ReadFile(Final()), !one.starts         ? "(none)"
                                     : one.key.isEmpty() ? kInstaller + tail
                                                         : kInstaller);
        EXPECT_EQ(peer.asked.size(), one.key.isEmpty() ? 2 : 3);
        QFile::remove(Final() + ".ran");
    }
}

// Those of a colleague who downloads at the same time are his.
TEST_F(UpdateTest, WhatAKilledProgramHasLeftGoesWithTheNextDownload) {
    for (const int daysAgo : {0, 2}) {
        QFile file(program.Folder() + QString("update.exe.%1.nuevo").arg(daysAgo));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.setFileTime(QDateTime::currentDateTime().addDays(-daysAgo),
                         QFile::FileModificationTime);
    }
    Serve("update.exe", HttpAnswer(""));
    Check();
    EXPECT_TRUE(Shows(kNotDownloaded));
    EXPECT_EQ(Files(), "update.exe.0.nuevo");
}

TEST_F(UpdateTest, AnInstallerThatDoesNotStartLetsTheProgramGoOn) {
    Serve("update.exe", HttpAnswer("#!/nowhere/interpreter\n"));
    Check();
    EXPECT_TRUE(Shows("No se ha podido instalar la nueva versión"));
    EXPECT_TRUE(QTest::qWaitFor(IsFree));
    EXPECT_TRUE(frmMain->isVisible());
}

TEST_F(UpdateTest, ASaveAndAnOpenDialogAreLetFinish) {
    Maker.updateService = "http://" + peer.Host();
    QDialog dialog(frmMain);
    {
        const InputHold saving;
        Check();
        EXPECT_TRUE(Shows(kPending));
        LetThreeLooksPass();
        dialog.open();
    }
    LetThreeLooksPass();
    EXPECT_EQ(boxes.Texts(), "");
    dialog.close();
    EXPECT_TRUE(Asks("update.exe"));
}

TEST_F(UpdateTest, NeitherSearchNorQuestionNorEndComeIntoAPublish) {
    TemplateBuilder().Add(3, "index.html", "", "<p>inicio</p>").Write(program.Folder(), "a.zdt");
    SetTemplate(program.Folder() + "a.zdt", 0, 6);
    SetStorage(kStorageFTP, {});
    SetFTP("127.0.0.1", "/", "ana", "clave");
    FTPControlPort = 1;
    std::function<void()> during;
    QObject::connect(frmMain->prbProgress[1], &QProgressBar::valueChanged, frmMain, [&] {
        if (during) {
            std::exchange(during, nullptr)();
            EXPECT_EQ(boxes.Texts(), "");
            EXPECT_TRUE(PublishUnderWay() && frmMain->isVisible());
        }
    });
    const auto publish = [&](const std::function<void()>& act) {
        boxes.seen.clear();
        during = act;
        SelectMainTab(kTabPublish);
        Click(frmMain->cmdUpdateWeb[0]);
        EXPECT_FALSE(during);
    };
    peer.waits = true;
    Serve("update.exe", "HTTP/1.1 200 OK\r\nContent-Length: 30\r\n\r\n#!");
    publish([&] {
        Check();
        LetThreeLooksPass();
        EXPECT_EQ(peer.asked.size(), 0);
        EXPECT_TRUE(frmMain->tmrUpdate->isActive());
    });
    Serve("fileversion.txt", "");
    EXPECT_TRUE(Asks("fileversion.txt"));
    publish([&] {
        peer.Say(HttpAnswer("202611250000"));
        EXPECT_TRUE(Shows(kPending));
        LetThreeLooksPass();
    });
    EXPECT_TRUE(Asks("update.exe"));
    EXPECT_TRUE(QTest::qWaitFor(Disabled));
    publish(LetThreeLooksPass);
    EXPECT_TRUE(QTest::qWaitFor(Disabled));
    publish([&] {
        peer.Say(kInstaller.mid(2));
        LetThreeLooksPass();
        EXPECT_FALSE(QFile::exists(Final()));
    });
    EXPECT_TRUE(Ran());
}
