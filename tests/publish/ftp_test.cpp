#include "publish/ftp.h"

#include "core/settings.h"
#include "forms/mainform.h"
#include "platform/events.h"
#include "publish/md5control.h"
#include "site/abort.h"
#include "site/md5.h"
#include "site/steps.h"
#include "tests/support/boxes.h"
#include "tests/support/ftpserver.h"
#include "transfer/transfer.h"

#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

// A store's folder, the form with its steps and a server of the test's own.
class SendFilesTest : public testing::Test {
protected:
    void SetUp() override {
        FTPControlPort = server.Port();
        SetStoreFolder(folder.path() + "/");
        SetStorage(1, {});
        SetFTP("127.0.0.1", "/web", "ana", "clave");
        ResetControlFile();
        SetAbortPublish(false);
        SetUpSteps();
        StartSteps();
        NextStep();
        NextStep(); // "Conectar con el Servidor Web"
    }

    static OutputFile File(const QString& name, const QByteArray& data) {
        return {name, {}, MD5Bytes(data), false, data};
    }

    bool Recorded(const OutputFile& file) const { return IsFileUnchanged(file.Name, file.Md5); }

    QString StagingFile() const { return folder.path() + "/kpfftp.tmp"; }

    QTemporaryDir folder;
    FtpServer server{{"/web"}};
    MainForm form;
    BoxAnswers boxes;
};

constexpr int kConnectStep = 2;
constexpr int kSendStep = 3;

} // namespace

TEST_F(SendFilesTest, EachFileCostsTwoCommandsAndArrivesWhole) {
    QByteArray everyByte;
    for (int byte = 0; byte < 256; ++byte) {
        everyByte += static_cast<char>(byte);
    }
    FtpFaults faults;
    faults.replies = {{"226", "200 As good as 226"}};
    server.Misbehave(faults);
    std::vector<OutputFile> files = {File("index.html  ", "<html>\r\n"),
                                     File("año \"1\" %41.html", everyByte), File("uno.js", "x"),
                                     File("   ", "without a name")};
    EXPECT_TRUE(SendFiles(files));
    EXPECT_EQ(server.Record().files,
              (QMap<QByteArray, QByteArray>{{"/web/index.html", "<html>\r\n"},
                                            {"/web/a\xF1o \"1\" %41.html", everyByte},
                                            {"/web/uno.js", "x"}}));
    EXPECT_EQ(server.Record().sessions, 1);
    EXPECT_EQ(server.Record().Count("CWD"), 1);
    EXPECT_EQ(server.Record().Count("EPSV"), 3);
    EXPECT_EQ(server.Record().Count("STOR"), 3);
    EXPECT_EQ(server.Record().commands.size(), 3 + 1 + 1 + 2 * 3)
        << server.Record().commands.join('|').constData();
    EXPECT_EQ(StateOfStep(kSendStep), StepState::Done);
    EXPECT_FALSE(QFile::exists(StagingFile()));
    EXPECT_EQ(boxes.Texts(), "");
}

TEST_F(SendFilesTest, OnlyWhatChangedIsSentAgain) {
    std::vector<OutputFile> files = {File("a.html", "first"), File("b.html", "second")};
    EXPECT_TRUE(SendFiles(files));
    files[1] = File("b.html", "changed!");
    server.ForgetCommands();
    EXPECT_TRUE(SendFiles(files));
    EXPECT_EQ(server.Record().Count("STOR"), 1);
    EXPECT_EQ(server.Record().files["/web/b.html"], "changed!");
}

TEST_F(SendFilesTest, TheSessionEndsWithAGoodBye) {
    std::vector<OutputFile> files = {File("a.html", "text")};
    EXPECT_TRUE(SendFiles(files));
    while (ineFTPSend().StillExecuting()) {
        WaitForEvents();
    }
    EXPECT_EQ(server.Record().Count("QUIT"), 1);
    EXPECT_EQ(server.Record().sessions, 1);
}

TEST_F(SendFilesTest, TheLastLevelOfTheFolderIsMade) {
    SetFTP("127.0.0.1", "/web/mi tienda", "", "clave");
    std::vector<OutputFile> files = {File("a.html", "text")};
    EXPECT_TRUE(SendFiles(files));
    EXPECT_TRUE(server.Record().files.contains("/web/mi tienda/a.html"));
    EXPECT_TRUE(server.Record().commands.contains("USER anonymous"));
    EXPECT_TRUE(server.Record().commands.contains("PASS clave"));
}

TEST_F(SendFilesTest, AServerWithoutExtendedPassiveModeIsServedTheOldWay) {
    FtpFaults faults;
    faults.extendedPassive = false;
    server.Misbehave(faults);
    std::vector<OutputFile> files = {File("a.html", "one"), File("b.html", "two")};
    EXPECT_TRUE(SendFiles(files));
    EXPECT_EQ(server.Record().files.size(), 2);
    EXPECT_EQ(server.Record().Count("PASV"), 2);
}

TEST_F(SendFilesTest, AFailedConnectionIsToldAndNothingIsRecorded) {
    const struct {
        const char* path;
        QHash<QByteArray, QByteArray> replies;
        QString told;
    } kCases[] = {
        {"/no/such/levels", {}, "550 No such folder"},
        {"/web", {{"", "421-Full\r\n421 Too many"}}, "421-Full\n421 Too many"},
        {"/web", {{"USER", "530 Not you"}}, "530 Not you"},
        {"/web", {{"PASS", "530 Who?"}}, "530 Who?"},
        {"/web", {{"PASS", "421 Later"}}, "421 Later"},
        {"/web",
         {{"CWD", "450 Busy"}, {"MKD", "550-No\r\n 551 \r\n550 really"}},
         "550-No\n551\n550 really"},
        {"/web", {{"CWD", "550 "}, {"MKD", "550 "}}, "550"},
        {"/web",
         {{"CWD", "550 " + QByteArray(2000, 'x')}, {"MKD", "550 " + QByteArray(2000, 'x')}},
         "550 " + QString(396, u'x')},
        {"/web\r\nDELE a", {}, "Hay caracteres que no puede llevar una orden"},
    };
    for (const auto& failure : kCases) {
        SetFTP("127.0.0.1", failure.path, "ana", "clave");
        FtpFaults faults;
        faults.replies = failure.replies;
        server.Misbehave(faults);
        boxes.seen.clear();
        std::vector<OutputFile> files = {File("a.html", "text")};
        EXPECT_FALSE(SendFiles(files));
        EXPECT_EQ(boxes.Texts(),
                  "Error al conectar con el servidor FTP '127.0.0.1'. " + failure.told);
        EXPECT_EQ(boxes.seen.at(0).icon, QMessageBox::Warning);
        EXPECT_EQ(StateOfStep(kConnectStep), StepState::Failed);
        EXPECT_FALSE(Recorded(files[0]));
        delete &ineFTPSend(); // the next case has a session of its own
    }
    EXPECT_EQ(server.Record().Count("DELE"), 0);
}

TEST_F(SendFilesTest, SettingsThatCantBeAServerAreToldSo) {
    const std::pair<QString, QString> kCases[] = {
        {"", "ana"},
        {"a b", "ana"},
        {"127.0.0.1/x", "ana"},
        {"127.0.0.1:21", "ana"},
        {"ana@host", "ana"},
        {"[::1", "ana"},
        {"::1%a b", "ana"},
        {"127.0.0.1\n", "ana\n"},
        {"127.0.0.1", "a\r\nDELE b"},
    };
    for (const auto& [host, user] : kCases) {
        SetFTP(host, "/web", user, "clave");
        boxes.seen.clear();
        EXPECT_FALSE(ConnectFTP());
        EXPECT_EQ(boxes.Texts(), "Se produjo un error al intentar conectar con el servidor FTP '" +
                                     host + "'.\n Asegúrese que la configuración es la correcta.");
    }
    EXPECT_EQ(server.Record().sessions, 0);
}

TEST_F(SendFilesTest, WhatIsTypedReachesTheServerByteForByte) {
    QString printable;
    for (char16_t letter = u' '; letter <= 0xFF; letter += letter == u'~' ? 0x22 : 1) {
        printable += QChar(letter);
    }
    const QByteArray bytes = printable.toLatin1();
    FtpFaults faults;
    faults.replies = {{"CWD", "250 There"}};
    server.Misbehave(faults);
    const std::pair<QString, QByteArray> kPaths[] = {
        {"/web/", "/web"},    {"web", "web"},       {"", {}},           {"/", "/"},
        {"../a/.", "../a/."}, {" a  b ", " a  b "}, {printable, bytes}, {"//", "/"},
    };
    for (const auto& [path, expected] : kPaths) {
        SetFTP(" FTP://localhost/ ", path, printable, printable);
        server.ForgetCommands();
        EXPECT_TRUE(ConnectFTP()) << boxes.Texts().toStdString();
        const QList<QByteArray> commands = server.Record().commands;
        EXPECT_EQ(commands.mid(0, 2),
                  (QList<QByteArray>{("USER " + bytes).trimmed(), ("PASS " + bytes).trimmed()}));
        EXPECT_EQ(commands.value(3), expected.isEmpty() ? "" : ("CWD " + expected).trimmed());
        delete &ineFTPSend();
    }
}

TEST_F(SendFilesTest, ARefusedFileStopsTheSendingButCountsAsSent) {
    const struct {
        QHash<QByteArray, QByteArray> replies;
        QString told;
    } kCases[] = {
        {{{"STOR", "553 Not that name"}}, "553 Not that name (12003)."},
        {{{"STOR", "421 Good night"}}, "421 Good night (12003)."},
        {{{"TYPE", "504 No"}}, "504 No (12003)."},
        {{{"EPSV", "500 What?"}, {"PASV", "425 No"}}, "425 No (12003)."},
        {{{"226", "552 Quota"}}, "552 Quota (12003)."},
        {{{"EPSV", "502 No"}, {"PASV", "227 Wherever"}},
         "El servidor ha contestado de forma inesperada (12003)."},
    };
    for (const auto& refusal : kCases) {
        FtpFaults faults;
        faults.replies = refusal.replies;
        server.Misbehave(faults);
        boxes.seen.clear();
        QFile::remove(folder.path() + "/md5control.txt");
        ResetControlFile();
        std::vector<OutputFile> files = {File("a.html", "text"), File("b.html", "more")};
        EXPECT_TRUE(SendFiles(files));
        EXPECT_EQ(boxes.Texts(), "Error al enviar el archivoa.html. " + refusal.told);
        EXPECT_EQ(boxes.seen.at(0).icon, QMessageBox::Information);
        EXPECT_EQ(StateOfStep(kSendStep), StepState::Failed);
        EXPECT_TRUE(Recorded(files[0]));
        EXPECT_FALSE(Recorded(files[1]));
        EXPECT_TRUE(QFile::exists(StagingFile()));
        delete &ineFTPSend();
    }
    EXPECT_FALSE(server.Record().files.contains("/web/b.html"));
}

TEST_F(SendFilesTest, AServerThatFallsSilentIsGivenUpInTime) {
    FtpFaults faults;
    faults.stall = true;
    server.Misbehave(faults);
    FTPRequestTimeout = 1;
    std::vector<OutputFile> files = {File("a.html", "text")};
    EXPECT_TRUE(SendFiles(files));
    FTPRequestTimeout = 20;
    EXPECT_EQ(boxes.Texts(), "Error al enviar el archivoa.html. El servidor no responde (12002).");
}

// By itself libcurl would come by once a second.
TEST_F(SendFilesTest, AFileGivenUpWhileTheServerIsSilentEndsAtOnce) {
    FtpFaults faults;
    faults.stall = true;
    server.Misbehave(faults);
    QFile local(StagingFile());
    ASSERT_TRUE(local.open(QIODevice::WriteOnly) && local.write("text") == 4 && local.flush());
    ASSERT_TRUE(ConnectFTP());
    ineFTPSend().SendFile(StagingFile(), "a");
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        if (server.Record().files.contains("/web/a")) {
            poll.stop();
            ineFTPSend().Cancel();
            ServeEvents();
        }
    });
    poll.start(20);
    QElapsedTimer time;
    time.start();
    while (ineFTPSend().StillExecuting()) {
        WaitForEvents();
    }
    EXPECT_LT(time.elapsed(), 900);
    EXPECT_EQ(ineFTPSend().ResponseCode(), kErrConnectionAborted);
}

TEST_F(SendFilesTest, AFileCutByAResetIsSentAgainOnANewConnection) {
    FtpFaults faults;
    faults.resets = 2;
    server.Misbehave(faults);
    std::vector<OutputFile> files = {File("big.jpg", QByteArray(3'000'000, 'j')),
                                     File("b.html", "after")};
    EXPECT_TRUE(SendFiles(files));
    EXPECT_EQ(server.Record().files["/web/big.jpg"], files[0].Data);
    EXPECT_EQ(server.Record().files["/web/b.html"], "after");
    EXPECT_EQ(server.Record().sessions, 3);
    EXPECT_EQ(boxes.Texts(), "");
    EXPECT_EQ(StateOfStep(kSendStep), StepState::Done);
}

// A big file is cut, a small one refused when the server has it all.
TEST_F(SendFilesTest, AServerOutOfRoomIsToldAndNotTriedForEver) {
    FtpFaults faults;
    faults.roomFor = 1000;
    server.Misbehave(faults);
    for (const int size : {3'000'000, 3'000}) {
        boxes.seen.clear();
        std::vector<OutputFile> files = {File("big.jpg", QByteArray(size, 'j'))};
        EXPECT_TRUE(SendFiles(files));
        EXPECT_EQ(boxes.Texts(), "Error al enviar el archivobig.jpg. 452 No room left (12003).");
        EXPECT_EQ(StateOfStep(kSendStep), StepState::Failed);
        StartSteps();
        NextStep();
        NextStep();
    }
}

TEST_F(SendFilesTest, AServerThatRefusesDataEndsTheSending) {
    FtpFaults faults;
    faults.refuseData = true;
    server.Misbehave(faults);
    std::vector<OutputFile> files = {File("a.html", "text")};
    EXPECT_TRUE(SendFiles(files));
    EXPECT_EQ(StateOfStep(kSendStep), StepState::Failed);
    EXPECT_EQ(boxes.seen.size(), 1U);
}

TEST_F(SendFilesTest, AServerThatClosesBetweenFilesGetsThemAll) {
    FtpFaults faults;
    faults.closeAfterFile = true;
    for (const char* farewell : {"", "421 Idle for too long\r\n"}) {
        faults.farewell = farewell;
        server.Misbehave(faults);
        const QByteArray text = QByteArray("text") + farewell;
        std::vector<OutputFile> files = {File("a", text), File("b", text), File("c", text)};
        EXPECT_TRUE(SendFiles(files));
        EXPECT_EQ(server.Record().files["/web/c"], text);
        EXPECT_EQ(boxes.Texts(), "");
    }
    EXPECT_EQ(server.Record().sessions, 6); // none to say good-bye
}

// As after a check of the settings and a long pause, or a pause between two files.
TEST_F(SendFilesTest, ASessionThatTheServerEndedForIdlenessIsOpenedAgain) {
    for (const QByteArray lastWords : {"421 Timeout", ""}) {
        std::vector<OutputFile> files = {File("a" + lastWords, "1"), File("b" + lastWords, "2")};
        EXPECT_TRUE(ConnectFTP());
        server.HangUp(lastWords);
        QObject::connect(&ineFTPSend(), &TransferClient::StateChanged, &form, [&](int state) {
            if (state == kStateCompleted && server.Record().files.contains("/web/a" + lastWords)) {
                ineFTPSend().disconnect(&form);
                server.HangUp(lastWords);
            }
        });
        EXPECT_TRUE(SendFiles(files));
        EXPECT_EQ(boxes.Texts(), "");
        EXPECT_TRUE(server.Record().files.contains("/web/b" + lastWords));
    }
    EXPECT_EQ(server.Record().sessions, 2 * 3);
}

TEST_F(SendFilesTest, CancellingStopsBetweenFilesAndKeepsWhatWasRecorded) {
    std::vector<OutputFile> files = {File("a.html", "1"), File("b.html", "2"), File("c.html", "3")};
    QObject::connect(&ineFTPSend(), &TransferClient::StateChanged, &form, [this](int state) {
        if (state == kStateCompleted && server.Record().files.size() == 2) {
            SetAbortPublish(true);
        }
    });
    EXPECT_FALSE(SendFiles(files));
    EXPECT_EQ(server.Record().files.size(), 2);
    EXPECT_TRUE(Recorded(files[1]));
    EXPECT_FALSE(Recorded(files[2]));
}

// What a stopped publish left in the staging file goes along behind a shorter file, once.
TEST_F(SendFilesTest, TheStagingFileIsNotEmptiedFirst) {
    QFile staging(StagingFile());
    ASSERT_TRUE(staging.open(QIODevice::WriteOnly));
    staging.write("0123456789");
    staging.close();
    std::vector<OutputFile> files = {File("a.html", "abc"), File("b.html", "xyz")};
    EXPECT_TRUE(SendFiles(files));
    EXPECT_EQ(server.Record().files["/web/a.html"], "abc3456789");
    EXPECT_EQ(server.Record().files["/web/b.html"], "xyz");
}
