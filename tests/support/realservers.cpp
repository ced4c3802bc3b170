#include "tests/support/realservers.h"

#include "tests/support/files.h"
#include "text/ansi.h"

#include <QRegularExpression>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr uid_t kNobody = 65534; // who runs a server that root starts

QString Name(ServerKind kind) {
    constexpr const char* kNames[] = {"pyftpdlib", "proftpd", "vsftpd", "pure-ftpd"};
    return QString::fromLatin1(kNames[static_cast<int>(kind)]);
}

} // namespace

QString RealServer::Obstacle(ServerKind kind) {
    return ServerProcess::Obstacle(Name(kind));
}

RealServer::RealServer(ServerKind kindOfServer) : kind(kindOfServer), server(Name(kind)) {
    MakeFolder({});
}

int RealServer::Start(const ServerChoices& choices) {
    const QStringList account{kServerUser, kServerPassword, choices.littleRoom ? "1" : "0"};
    return server.Start(choices.host, account,
                        [](QTcpSocket& visitor) { return visitor.waitForReadyRead(); });
}

QString RealServer::Home() const {
    const bool confined = kind == ServerKind::Pyftpdlib || kind == ServerKind::PureFTPd;
    return confined ? "/" : server.File("home/");
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
    const QString log = QString::fromLatin1(ReadFile(server.File("commands.log")));
    QList<QByteArray> commands;
    for (const auto& line : QRegularExpression(kLines[static_cast<int>(kind)]).globalMatch(log)) {
        commands.push_back(line.captured(1).toLatin1());
    }
    return commands;
}

QByteArray RealServer::OnDisk(const QString& path) const {
    const QByteArray name = kind == ServerKind::Pyftpdlib ? path.toUtf8() : ToAnsi(path);
    return server.File("home").toUtf8() + (path.isEmpty() ? "" : "/") + name;
}
