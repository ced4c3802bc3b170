// Sending a site to FTP servers that a test has by the hand. Dialogues with them stand in
// tests/publish/dialogues: each .txt file holds cases that begin with "### name", then
//
//   host HOST, path PATH, user NAME, file NAME|CONTENT, file NAME|NUMBER*LETTER: what is sent, and
//   where to; patience SECONDS; check: the settings are tried first, as their button does;
//   staged CONTENT: what a stopped publish has left in the staging file
//
// then the script that the server follows (ftpserver.h), where "@web" is a log-in that leads to the
// folder /web, and then what the run comes to, each line behind ": ".
#include "publish/ftp.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "forms/mainform.h"
#include "platform/events.h"
#include "publish/md5control.h"
#include "site/abort.h"
#include "site/md5.h"
#include "site/steps.h"
#include "tests/support/boxes.h"
#include "tests/support/files.h"
#include "tests/support/ftpserver.h"
#include "transfer/transfer.h"

#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace {

const QList<QByteArray> kIntoWeb = {
    "* connected",  "< 220 Welcome", "> USER ana", "< 331 Password, please",
    "> PASS clave", "< 230 Come in", "> PWD",      "< 257 \"/\" it is",
    "> CWD /web",   "< 250 There"};

QByteArray Lines(const QList<QByteArray>& lines) {
    return lines.isEmpty() ? QByteArray() : lines.join('\n') + '\n';
}

OutputFile File(const QString& name, const QByteArray& data) {
    return {name, {}, MD5Bytes(data), false, data};
}

// NAME|CONTENT or NAME|NUMBER*LETTER.
OutputFile FileOf(const QByteArray& text) {
    const QByteArray content = text.mid(text.indexOf('|') + 1);
    const int number = content.contains('*') ? content.split('*')[0].toInt() : 0;
    return File(QString::fromLatin1(text.left(text.indexOf('|'))),
                number > 0 ? QByteArray(number, content.back()) : content);
}

// A case as read from its file.
struct Dialogue {
    QString host = "127.0.0.1";
    QString path = "/web";
    QString user = "ana";
    int patience = 20; // seconds
    bool check = false;
    QByteArray staged; // is in the staging file before
    std::vector<OutputFile> files;
    QList<QByteArray> script;
    QByteArray expected; // the script, and what the run comes to
};

Dialogue ReadDialogue(const TextCase& tested) {
    Dialogue dialogue;
    for (const QByteArray& line : tested.lines) {
        const QByteArray value = Unescaped(line.mid(line.indexOf(' ') + 1));
        if (line.startsWith("path ")) {
            dialogue.path = value;
        } else if (line.startsWith("user ")) {
            dialogue.user = value;
        } else if (line.startsWith("host ")) {
            dialogue.host = value;
        } else if (line.startsWith("staged ")) {
            dialogue.staged = value;
        } else if (line.startsWith("patience ")) {
            dialogue.patience = value.toInt();
        } else if (line == "check") {
            dialogue.check = true;
        } else if (line.startsWith("file ")) {
            dialogue.files.push_back(FileOf(value));
        } else {
            const QList<QByteArray> lines = line == "@web" ? kIntoWeb : QList<QByteArray>{line};
            dialogue.script += line.startsWith(": ") ? QList<QByteArray>() : lines;
            dialogue.expected += Lines(lines);
        }
    }
    return dialogue;
}

// A store's folder and the form with its steps.
class SendFilesTest : public testing::Test {
protected:
    void SetUp() override {
        FTPControlPort = server.Port();
        LoadFlavour("/nowhere/");
        SetStoreFolder(folder.path() + "/");
        SetStorage(kStorageFTP, {});
        SetFTP("127.0.0.1", "/web", "ana", "clave");
        Begin();
    }

    // As before the first run.
    void Begin() {
        delete &ineFTPSend(); // a session of its own
        QFile::remove(folder.path() + "/md5control.txt");
        QFile::remove(StagingFile());
        ResetControlFile();
        SetAbortPublish(false);
        SetUpSteps();
        ResetSteps();
        StartSteps();
        NextStep();
        NextStep(); // "Conectar con el Servidor Web"
        boxes.seen.clear();
    }

    void EndSession() {
        EXPECT_TRUE(QTest::qWaitFor([] { return !ineFTPSend().StillExecuting(); }));
    }

    QByteArray Run(const Dialogue& dialogue) {
        std::vector<OutputFile> files = dialogue.files;
        Begin();
        const FtpServer scripted(dialogue.script);
        FTPControlPort = scripted.Port();
        FTPRequestTimeout = dialogue.patience;
        SetFTP(dialogue.host, dialogue.path, dialogue.user, "clave");
        if (!dialogue.staged.isEmpty()) {
            WriteFile(StagingFile(), dialogue.staged);
        }
        EXPECT_TRUE(!dialogue.check || ConnectFTP());
        scripted.Record(); // returns when the server has said all that goes with its last answer
        const bool result = SendFiles(files);
        EndSession();
        FTPRequestTimeout = 20;
        return Lines(scripted.Record().transcript) + Outcome(result, files);
    }

    QByteArray Outcome(bool result, const std::vector<OutputFile>& files) const {
        QStringList lines = {QString(result ? "true" : "false") + ", steps " + Steps()};
        for (const SeenBox& box : boxes.seen) {
            lines += (box.icon == QMessageBox::Warning ? "box warning: " : "box information: ") +
                     box.text;
        }
        for (const OutputFile& file : files) {
            lines +=
                Recorded(file) ? QStringList("recorded " + file.Name.trimmed()) : QStringList();
        }
        lines +=
            QFile::exists(StagingFile()) ? QStringList("the staging file stays") : QStringList();
        QByteArray outcome;
        for (const QString& line : lines) {
            outcome += ": " + Escaped(line.toLatin1()) + '\n';
        }
        return outcome;
    }

    // A letter for each step: to do, current, done, failed.
    static QString Steps() {
        QString letters;
        for (int step = 0; step < kStepCount; ++step) {
            letters +=
                StepText(step).isEmpty() ? QString() : QString("tcdf"[int(StateOfStep(step))]);
        }
        return letters;
    }

    bool Recorded(const OutputFile& file) const { return IsFileUnchanged(file.Name, file.Md5); }

    QString StagingFile() const { return folder.path() + "/kpfftp.tmp"; }

    QTemporaryDir folder;
    FtpServer server;
    MainForm form;
    BoxAnswers boxes;
};

} // namespace

TEST_F(SendFilesTest, EveryDialogueGoesAsItsCaseSays) {
    for (const TextCase& tested : ReadCases(DIALOGUES)) {
        const Dialogue dialogue = ReadDialogue(tested);
        EXPECT_EQ(Run(dialogue).toStdString(), dialogue.expected.toStdString())
            << tested.name.toStdString();
    }
}

TEST_F(SendFilesTest, WhatIsTypedReachesTheServerByteForByte) {
    QString printable;
    for (char16_t letter = u' '; letter <= 0xFF; letter += letter == u'~' ? 0x22 : 1) {
        printable += QChar(letter);
    }
    const QByteArray bytes = printable.toLatin1();
    const std::pair<QString, QByteArray> kPaths[] = {
        {"/web/", "/web"},    {"web", "web"},       {"", {}},           {"/", "/"},
        {"../a/.", "../a/."}, {" a  b ", " a  b "}, {printable, bytes}, {"//", "/"},
    };
    for (const auto& [path, expected] : kPaths) {
        SetFTP(" FTP://localhost/ ", path, printable, printable);
        server.ForgetCommands();
        EXPECT_TRUE(ConnectFTP()) << boxes.Texts().toStdString();
        const QList<QByteArray> commands = server.Record().commands;
        EXPECT_EQ(commands.mid(0, 2), (QList<QByteArray>{"USER " + bytes, "PASS " + bytes}));
        EXPECT_EQ(commands.value(3), expected.isEmpty() ? "" : "CWD " + expected);
        delete &ineFTPSend();
    }
}

// As after a check of the settings and a long pause, or a pause between two files.
TEST_F(SendFilesTest, ASessionThatTheServerEndedForIdlenessIsOpenedAgain) {
    for (const QByteArray lastWords : {"421 Timeout", ""}) {
        const QList<QByteArray> end = lastWords.isEmpty()
                                          ? QList<QByteArray>{"! reset"}
                                          : QList<QByteArray>{"< " + lastWords, "! close"};
        std::vector<OutputFile> files = {File("a" + lastWords, "1"), File("b" + lastWords, "2")};
        EXPECT_TRUE(ConnectFTP());
        server.Play(end);
        QObject::connect(&ineFTPSend(), &TransferClient::StateChanged, &form, [&](int state) {
            if (state == kStateCompleted && server.Record().files.contains("a" + lastWords)) {
                ineFTPSend().disconnect(&form);
                server.Play(end);
            }
        });
        EXPECT_TRUE(SendFiles(files));
        EXPECT_EQ(boxes.Texts(), "");
        EXPECT_TRUE(server.Record().files.contains("b" + lastWords));
    }
    EXPECT_EQ(server.Record().sessions, 2 * 3);
}
