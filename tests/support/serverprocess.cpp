#include "tests/support/serverprocess.h"

#include <QRandomGenerator>
#include <QTcpServer>
#include <QTest>
#include <csignal>
#include <filesystem>
#include <sys/stat.h>

namespace {

constexpr int kStartWait = 10000; // milliseconds

// Below the ports that the system hands out by itself.
constexpr int kFirstPort = 12000;
constexpr int kLastPort = 32000;

// Script, kind and what ./test has unpacked: how every order to the script begins.
QStringList Script(const QString& kind) {
    return {SETTINGS_FOLDER "/start.sh", kind, SERVERS_FOLDER};
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

ServerProcess::ServerProcess(const QString& kindOfServer) : kind(kindOfServer) {
    chmod(folder.path().toUtf8().constData(), 0755);
}

ServerProcess::~ServerProcess() {
    if (process.processId() > 0) {
        kill(pid_t(-process.processId()), SIGKILL); // the group, sessions and all
    }
    process.waitForFinished();
    std::error_code ignored; // a folder of an earlier test harms none
    std::filesystem::remove_all(folder.path().toStdString(), ignored);
}

QString ServerProcess::Obstacle(const QString& kind) {
    QProcess check;
    check.start("sh", Script(kind));
    check.waitForFinished();
    return QString::fromUtf8(check.readAll());
}

int ServerProcess::Start(const QByteArray& host, const QStringList& choices,
                         const std::function<bool(QTcpSocket&)>& speaks) {
    const int port = FreePort(host);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("sh",
                  Script(kind) + QStringList{host, QString::number(port), folder.path()} + choices);
    QTcpSocket visitor;
    const auto ended = [this] { return process.state() == QProcess::NotRunning; };
    const auto ready = [&] {
        visitor.abort();
        visitor.connectToHost(QString::fromLatin1(host), quint16(port));
        return visitor.waitForConnected() && speaks(visitor);
    };
    if (!QTest::qWaitFor([&] { return ended() || ready(); }, kStartWait) || ended()) {
        qWarning().noquote() << process.readAll();
        return 0;
    }
    return port;
}
