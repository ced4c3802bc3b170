// Any server that servers/start.sh can become, started by a test on the loopback in a folder of its
// own, as an ordinary user, also when the tests run as root.
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <functional>

class ServerProcess {
public:
    explicit ServerProcess(const QString& kindOfServer);

    // Ends it with all its processes, and removes the folder.
    ~ServerProcess();

    // Why that kind can't run here, for the reader of the test's output; empty if it can.
    static QString Obstacle(const QString& kind);

    // A free port on `host` on which it is ready; 0, after ten seconds, if it isn't. `choices` are
    // the script's arguments behind the folder; `speaks` is given a visitor that has got through
    // and says whether he was answered.
    int Start(const QByteArray& host, const QStringList& choices,
              const std::function<bool(QTcpSocket&)>& speaks);

    // Path of something in the folder.
    QString File(const QString& name) const { return folder.filePath(name); }

private:
    QString kind;
    QTemporaryDir folder;
    QProcess process;
};
