#include "core/settings.h"
#include "forms/mainform.h"
#include "publish/ftp.h"
#include "publish/md5control.h"
#include "site/abort.h"
#include "site/md5.h"
#include "site/steps.h"
#include "tests/support/boxes.h"
#include "tests/support/realservers.h"
#include "transfer/transfer.h"

#include <QRegularExpression>
#include <QTcpServer>
#include <gtest/gtest.h>

namespace {

// A store's folder and a server of one of the kinds.
class ServersTest : public testing::TestWithParam<ServerKind> {
protected:
    void SetUp() override {
        const QString obstacle = RealServer::Obstacle(GetParam());
        if (!obstacle.isEmpty()) {
            GTEST_SKIP() << obstacle.toStdString();
        }
        SetStoreFolder(folder.path() + "/");
        SetStorage(kStorageFTP, {});
        ResetControlFile();
        SetAbortPublish(false);
        SetUpSteps();
    }

    void Start(const ServerChoices& choices = {}) {
        FTPControlPort = server.Start(choices);
        ASSERT_NE(FTPControlPort, 0) << "the server doesn't start";
        host = QString::fromLatin1(choices.host);
    }

    // To a folder below the server's home; without a user of its own on vsftpd.
    bool Send(const QString& path, std::vector<OutputFile>& files,
              const QString& user = kServerUser, const QString& password = kServerPassword) {
        const bool ownUser = GetParam() != ServerKind::Vsftpd || user != kServerUser;
        SetFTP(host, server.Home() + path, ownUser ? user : QString(), password);
        StartSteps();
        return SendFiles(files);
    }

    std::map<QByteArray, int> CountCommands() const {
        std::map<QByteArray, int> counts;
        for (const QByteArray& command : server.Commands()) {
            ++counts[command.split(' ').first().toUpper()];
        }
        return counts;
    }

    QTemporaryDir folder;
    RealServer server{GetParam()};
    QString host;
    MainForm form;
    BoxAnswers boxes;
};

OutputFile File(const QString& name, const QByteArray& data) {
    return {name, {}, MD5Bytes(data), false, data};
}

// Names that a page or a picture of a catalogue may bear, and some that trip addresses and shells.
const char* const kNames[] = {
    "index.html",      "año nuevo.html",  "ÁÉÍÓÚÜÑáéíóúüñ.jpg", "precio 5 €.html",
    "'comillas'.html", "\"dobles\".html", "50%25 & más.html",   "a#b?c=d.html",
    "[1]{2}~^`|.html", "-guión.html",     "x;type=a",           ".htaccess",
    "dos  blancos.js", "Index.html",      "punto..gif",         "¿qué¡ ºª«».html"};

// Some sixty files of all sizes, with bytes of every value.
std::vector<OutputFile> Site() {
    std::vector<OutputFile> files;
    const int kSizes[] = {1, 2, 0, 255, 4096, 65536, 1 << 20};
    for (int i = 0; i < 60; ++i) {
        const QString name =
            i < int(std::size(kNames)) ? QString(kNames[i]) : QString("producto%1.html").arg(i);
        QByteArray data(i < int(std::size(kSizes)) ? kSizes[i] : 900 + 997 * i, '\0');
        for (qsizetype at = 0; at < data.size(); ++at) {
            data[at] = static_cast<char>(at * 31 + at / 256 + i);
        }
        files.push_back(File(name, data));
    }
    return files;
}

QMap<QString, QByteArray> AsStored(const std::vector<OutputFile>& files) {
    QMap<QString, QByteArray> stored;
    for (const OutputFile& file : files) {
        stored[file.Name] = file.Data;
    }
    return stored;
}

std::string NameOfKind(const testing::TestParamInfo<ServerKind>& info) {
    const char* const kKinds[] = {"Pyftpdlib", "ProFTPD", "Vsftpd", "PureFTPd"};
    return kKinds[static_cast<int>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(All, ServersTest,
                         testing::Values(ServerKind::Pyftpdlib, ServerKind::ProFTPD,
                                         ServerKind::Vsftpd, ServerKind::PureFTPd),
                         NameOfKind);

} // namespace

TEST_P(ServersTest, ASiteArrivesWholeAndLaterOnlyWhatChanged) {
    Start();
    const QString path = "mi tienda/año 1/\"web\" ñ";
    server.MakeFolder("mi tienda/año 1");
    std::vector<OutputFile> files = Site();
    ASSERT_TRUE(Send(path, files)) << boxes.Texts().toStdString();
    ASSERT_EQ(boxes.Texts().toStdString(), "");
    EXPECT_TRUE(server.Files(path) == AsStored(files));
    EXPECT_EQ(server.Files(path).keys(), AsStored(files).keys());
    if (server.KeepsCommands()) {
        const std::map<QByteArray, int> expected = {{"USER", 1},  {"PASS", 1}, {"PWD", 1},
                                                    {"CWD", 3},   {"MKD", 1},  {"EPSV", 60},
                                                    {"STOR", 60}, {"TYPE", 1}};
        std::map<QByteArray, int> counts = CountCommands();
        counts.erase("QUIT"); // nobody waits for it
        EXPECT_EQ(counts, expected) << server.Commands().join('\n').constData();
    }

    ASSERT_TRUE(Send(path, files)) << boxes.Texts().toStdString();
    files[1].Data += "changed";
    files[1].Md5 = MD5Bytes(files[1].Data);
    ASSERT_TRUE(Send(path, files)) << boxes.Texts().toStdString();
    EXPECT_TRUE(server.Files(path) == AsStored(files));
    EXPECT_EQ(boxes.Texts().toStdString(), "");
    if (server.KeepsCommands()) {
        EXPECT_EQ(CountCommands()["STOR"], 61);
    }
}

TEST_P(ServersTest, WhatTheServerRefusesIsToldInItsWords) {
    Start();
    server.MakeFolder("fija", true);
    const struct {
        const char* path;
        QString user;
        QString password;
        const char* reply;
    } kCases[] = {
        {"no/hay/nada", kServerUser, kServerPassword, "550 "},
        {"fija/web", kServerUser, kServerPassword, "550 "},
        {"", "bea", kServerPassword, "530 "},
        {"", kServerUser, "clave", "530 "},
    };
    // Pure-FTPd takes seconds to refuse a log-in.
    const bool slow = GetParam() == ServerKind::PureFTPd;
    const bool anyPassword = GetParam() == ServerKind::Vsftpd;
    std::vector<OutputFile> files = {File("a.html", "text")};
    for (const auto& refused : kCases) {
        const bool logIn = QByteArray(refused.reply) == "530 ";
        if ((slow && logIn) || (anyPassword && refused.password == "clave")) {
            continue;
        }
        boxes.seen.clear();
        EXPECT_FALSE(Send(refused.path, files, refused.user, refused.password));
        EXPECT_TRUE(boxes.Texts().startsWith(
            QString("Error al conectar con el servidor FTP '127.0.0.1'. ") + refused.reply))
            << refused.path << ": " << boxes.Texts().toStdString();
        EXPECT_FALSE(IsFileUnchanged(files[0].Name, files[0].Md5));
    }
    boxes.seen.clear();
    EXPECT_TRUE(Send("fija", files));
    EXPECT_TRUE(boxes.Texts().contains(
        QRegularExpression("^Error al enviar el archivoa.html. 55\\d [^|]* \\(12003\\).$")))
        << boxes.Texts().toStdString();
}

// Without a user the log-in is an anonymous one, which Pure-FTPd grants to accounts of the system
// alone.
TEST_P(ServersTest, PathsAreTakenFromWhereTheLogInLeadsAlsoAnonymously) {
    Start();
    host = "localhost";
    server.MakeFolder("web");
    const char* const anonymous = GetParam() == ServerKind::PureFTPd ? kServerUser : "";
    const char* const user = GetParam() == ServerKind::Vsftpd ? "" : kServerUser;
    std::vector<OutputFile> files = {File("a.html", "text")};
    const struct {
        const char* path;
        const char* folder;
        const char* user;
    } kCases[] = {{"", "", anonymous}, {"web/dos/", "web/dos", user}, {"./tres", "tres", user}};
    for (const auto& place : kCases) {
        files[0].Md5 = MD5Bytes(QByteArray("new each time ") + place.path);
        SetFTP(host, place.path, place.user, kServerPassword);
        EXPECT_TRUE(ConnectFTP()); // as the button that checks the settings does
        EXPECT_TRUE(SendFiles(files));
        EXPECT_EQ(server.Files(place.folder), AsStored(files)) << place.path;
    }
    EXPECT_EQ(boxes.Texts().toStdString(), "");
}

TEST_P(ServersTest, AddressesOfVersion6Work) {
    if (!QTcpServer().listen(QHostAddress::LocalHostIPv6)) {
        GTEST_SKIP() << "this machine has no IP version 6";
    }
    ServerChoices choices;
    choices.host = "::1";
    Start(choices);
    std::vector<OutputFile> files = {File("a.html", "one"), File("b.html", "two")};
    EXPECT_TRUE(Send("", files));
    EXPECT_EQ(boxes.Texts().toStdString(), "");
    EXPECT_EQ(server.Files(""), AsStored(files));
}

// Also when the last bytes of a file have been taken before the disk is found full.
TEST_P(ServersTest, AFullDiskThereIsToldOnce) {
    ServerChoices choices;
    choices.littleRoom = true;
    Start(choices);
    const QRegularExpression told(
        "^Error al enviar el archivo\\S+\\. [45]\\d\\d[^|]* \\(12003\\).$");
    const bool longReply = GetParam() == ServerKind::PureFTPd; // its reason stands first
    std::vector<OutputFile> files = {File("grande.jpg", QByteArray(3'000'000, 'j')),
                                     File("b.html", "two")};
    EXPECT_TRUE(Send("", files));
    EXPECT_TRUE(boxes.Texts().contains(told)) << boxes.Texts().toStdString();
    EXPECT_EQ(boxes.Texts().contains("-Error during write to file\n"), longReply);
    EXPECT_FALSE(IsFileUnchanged(files[1].Name, files[1].Md5));

    files.clear();
    for (int i = 0; i < 40; ++i) {
        files.push_back(File(QString("pagina%1.html").arg(i), QByteArray(11'000, char(i))));
    }
    boxes.seen.clear();
    EXPECT_TRUE(Send("", files));
    if (!boxes.seen.empty()) { // a bound on the files, in place of a disk, lets them through
        EXPECT_TRUE(boxes.Texts().contains(told)) << boxes.Texts().toStdString();
    }
}
