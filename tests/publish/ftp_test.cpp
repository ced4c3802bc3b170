#include "publish/ftp.h"

#include "core/settings.h"
#include "forms/mainform.h"
#include "platform/transfer.h"
#include "publish/abort.h"
#include "publish/md5.h"
#include "publish/md5control.h"
#include "publish/steps.h"
#include "tests/support/boxes.h"
#include "tests/support/ftpserver.h"

#include <QTemporaryDir>
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

    bool Shows(const QLabel* picture, int step) const {
        return form.imgStep[step]->pixmap(Qt::ReturnByValue).cacheKey() ==
               picture->pixmap(Qt::ReturnByValue).cacheKey();
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
    EXPECT_TRUE(Shows(form.imgDoneStep, kSendStep));
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
        const char* box;
    } kCases[] = {
        {"/no/such/levels",
         {},
         "Error al conectar con el servidor FTP '127.0.0.1'. 550 No such folder"},
        {"/web",
         {{"PASS", "530 Who?"}},
         "Error al conectar con el servidor FTP '127.0.0.1'. 530 Who?"},
        {"/web",
         {{"CWD", "450 Busy"}, {"MKD", "550-No\r\n550 really"}},
         "Error al conectar con el servidor FTP '127.0.0.1'. 550 really"},
    };
    for (const auto& failure : kCases) {
        SetFTP("127.0.0.1", failure.path, "ana", "clave");
        FtpFaults faults;
        faults.replies = failure.replies;
        server.Misbehave(faults);
        boxes.seen.clear();
        std::vector<OutputFile> files = {File("a.html", "text")};
        EXPECT_FALSE(SendFiles(files));
        EXPECT_EQ(boxes.Texts(), failure.box);
        EXPECT_EQ(boxes.seen.at(0).icon, QMessageBox::Warning);
        EXPECT_TRUE(Shows(form.imgFailedStep, kConnectStep));
        EXPECT_FALSE(Recorded(files[0]));
        ineFTPSend().Cancel();
    }
}

TEST_F(SendFilesTest, ARefusedFileStopsTheSendingButCountsAsSent) {
    FtpFaults faults;
    faults.replies = {{"STOR", "553 Not that name"}};
    server.Misbehave(faults);
    std::vector<OutputFile> files = {File("a.html", "text"), File("b.html", "more")};
    EXPECT_TRUE(SendFiles(files));
    EXPECT_EQ(boxes.Texts(), "Error al enviar el archivoa.html. 553 Not that name (12003).");
    EXPECT_EQ(boxes.seen.at(0).icon, QMessageBox::Information);
    EXPECT_TRUE(Shows(form.imgFailedStep, kSendStep));
    EXPECT_TRUE(Recorded(files[0]));
    EXPECT_FALSE(Recorded(files[1]));
    EXPECT_EQ(server.Record().Count("STOR"), 1);
    EXPECT_TRUE(QFile::exists(StagingFile()));
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
    EXPECT_TRUE(Shows(form.imgDoneStep, kSendStep));
}

TEST_F(SendFilesTest, AServerOutOfRoomIsToldAndNotTriedForEver) {
    FtpFaults faults;
    faults.roomFor = 1000;
    server.Misbehave(faults);
    std::vector<OutputFile> files = {File("big.jpg", QByteArray(3'000'000, 'j'))};
    EXPECT_TRUE(SendFiles(files));
    EXPECT_EQ(boxes.Texts(), "Error al enviar el archivobig.jpg. 452 No room left (12003).");
    EXPECT_TRUE(Shows(form.imgFailedStep, kSendStep));
}

TEST_F(SendFilesTest, AServerThatRefusesDataEndsTheSending) {
    FtpFaults faults;
    faults.refuseData = true;
    server.Misbehave(faults);
    std::vector<OutputFile> files = {File("a.html", "text")};
    EXPECT_TRUE(SendFiles(files));
    EXPECT_TRUE(Shows(form.imgFailedStep, kSendStep));
    EXPECT_EQ(boxes.seen.size(), 1U);
}

TEST_F(SendFilesTest, AServerThatClosesBetweenFilesGetsThemAll) {
    FtpFaults faults;
    faults.closeAfterFile = true;
    server.Misbehave(faults);
    std::vector<OutputFile> files = {File("a", "1"), File("b", "2"), File("c", "3")};
    EXPECT_TRUE(SendFiles(files));
    EXPECT_EQ(server.Record().files.size(), 3);
    EXPECT_EQ(boxes.Texts(), "");
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
