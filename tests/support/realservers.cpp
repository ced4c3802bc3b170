#include "tests/support/realservers.h"

#include "tests/support/files.h"
#include "text/ansi.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr uid_t kNobody = 65534;  // who runs a server that root starts
constexpr int kStartWait = 10000; // milliseconds

// Below the ports that the system hands out by itself.
constexpr int kFirstPort = 12000;
constexpr int kLastPort = 32000;

// Script, kind and what ./test has unpacked: how every order to the script begins.
QStringList Script(ServerKind kind) {
    constexpr const char* kNames[] = {"pyftpdlib", "proftpd", "vsftpd", "pure-ftpd"};
    return {SETTINGS_FOLDER "/start.sh", kNames[static_cast<int>(kind)], SERVERS_FOLDER};
}

int FreePort(const QByteArray& host) {
    for (;;) {
        const int port = QRandomGenerator::global()->bounded(kFirstPort, kLastPort);
        if (QTcpServer().listen(QHostAddress(QString::fromLatin1(host)), quint16(port))) {
            return port;
        }
    }
}

} // namespace

QString RealServer::Obstacle(ServerKind kind) {
    QProcess check;
    check.start("sh", Script(kind));
    check.waitForFinished();
    return QString::fromUtf8(check.readAll());
}

RealServer::RealServer(ServerKind kindOfServer) : kind(kindOfServer) {
    chmod(folder.path().toUtf8().constData(), 0755);
    MakeFolder({});
}

RealServer::~RealServer() {
    if (process.processId() > 0) {
        kill(pid_t(-process.processId()), SIGKILL); // the group, sessions and all
    }
    process.waitForFinished();
    std::error_code ignored; // a folder of an earlier test harms none
    std::filesystem::remove_all(folder.path().toStdString(), ignored);
}

int RealServer::Start(const ServerChoices& choices) {
    const int port = FreePort(choices.host);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("sh", Script(kind) + QStringList{choices.host, QString::number(port),
                                                   folder.path(), kServerUser, kServerPassword,
                                                   choices.littleRoom ? "1" : "0"});
    QTcpSocket visitor;
    const auto ended = [this] { return process.state() == QProcess::NotRunning; };
    const auto speaks = [&] {
        visitor.connectToHost(QString::fromLatin1(choices.host), quint16(port));
        return visitor.waitForConnected() && visitor.waitForReadyRead();
    };
    if (!QTest::qWaitFor([&] { return ended() || speaks(); }, kStartWait) || ended()) {
        qWarning().noquote() << process.readAll();
        return 0;
    }
    return port;
}

QString RealServer::Home() const {
    const bool confined = kind == ServerKind::Pyftpdlib || kind == ServerKind::PureFTPd;
    return confined ? "/" : folder.path() + "/home/";
}

void RealServer::MakeFolder(const QString& path, bool locked) {
    const std::filesystem::path home = OnDisk({}).toStdString();
    std::filesystem::path made = OnDisk(path).toStdString();
    std::filesystem::create_directories(made);
    chmod(made.c_str(), locked ? 0555 : 0755);
    for (; geteuid() == 0 && made.string().size() >= home.string().size();
         made = made.parent_path()) {
        if (chown(made.c_str(), kNobody, kNobody) != 0) {
            qFatal("No folder for the server");
        }
    }
}

QMap<QString, QByteArray> RealServer::Files(const QString& path) const {
    QMap<QString, QByteArray> files;
    for (const auto& entry : std::filesystem::directory_iterator(OnDisk(path).toStdString())) {
        if (entry.is_regular_file()) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string content(std::istreambuf_iterator<char>(file), {});
            const auto name = QByteArray::fromStdString(entry.path().filename());
            files[kind == ServerKind::Pyftpdlib ? QString::fromUtf8(name) : FromAnsi(name)] =
                QByteArray::fromStdString(content);
        }
    }
    return files;
}

QList<QByteArray> RealServer::Commands() const {
    const char* const kLines[] = {"<- (.*)", "(.+)", "FTP command: Client \"127.0.0.1\", \"(.*)\"",
                                  "(?!)"};
    const QString log = QString::fromLatin1(ReadFile(folder.filePath("commands.log")));
    QList<QByteArray> commands;
    for (const auto& line : QRegularExpression(kLines[static_cast<int>(kind)]).globalMatch(log)) {
        commands.push_back(line.captured(1).toLatin1());
    }
    return commands;
}

QByteArray RealServer::OnDisk(const QString& path) const {
    const QByteArray name = kind == ServerKind::Pyftpdlib ? path.toUtf8() : ToAnsi(path);
    return folder.path().toUtf8() + "/home" + (path.isEmpty() ? "" : "/") + name;
}
