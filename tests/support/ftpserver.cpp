#include "tests/support/ftpserver.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <sys/socket.h>

namespace {

// Closes so that the peer sees a reset, not an end.
void ResetConnection(QTcpSocket* socket) {
    const linger now{1, 0};
    setsockopt(static_cast<int>(socket->socketDescriptor()), SOL_SOCKET, SO_LINGER, &now,
               sizeof now);
    socket->abort();
}

void Say(QTcpSocket* session, const QByteArray& reply) {
    session->write(reply + "\r\n");
    session->flush();
}

} // namespace

class FtpSessions : public QObject {
public:
    void Listen() {
        control = new QTcpServer(this);
        passive = new QTcpServer(this);
        control->listen(QHostAddress::LocalHost);
        connect(control, &QTcpServer::newConnection, this, &FtpSessions::Accept);
    }

    FtpFaults faults;
    FtpRecord record;
    QSet<QByteArray> folders;
    QTcpServer* control = nullptr;

private:
    void Accept();
    void ReadCommands(QTcpSocket* session);
    void Obey(QTcpSocket* session, const QByteArray& verb, const QByteArray& argument);
    void OpenPassive(QTcpSocket* session, bool extended);
    void Receive(QTcpSocket* session, const QByteArray& path);
    void TakeConnection(QTcpSocket* session, const QByteArray& path);
    void TakeBytes(QTcpSocket* session, QTcpSocket* transfer, const QByteArray& path);
    void EndUpload(QTcpSocket* session, QTcpSocket* transfer, const QByteArray& path);
    QByteArray FullPath(const QByteArray& argument) const;

    QTcpServer* passive = nullptr;
    QByteArray folder = "/"; // of the session
    QByteArray receiving;
};

int FtpRecord::Count(const QByteArray& verb) const {
    return static_cast<int>(
        std::count_if(commands.begin(), commands.end(), [&verb](const QByteArray& command) {
            return command.split(' ').first() == verb;
        }));
}

FtpServer::FtpServer(const QSet<QByteArray>& folders) : sessions(new FtpSessions) {
    sessions->folders = folders;
    sessions->folders.insert("/");
    sessions->moveToThread(&thread);
    QObject::connect(&thread, &QThread::finished, sessions, &QObject::deleteLater);
    thread.start();
    QMetaObject::invokeMethod(
        sessions,
        [this] {
            sessions->Listen();
            port = sessions->control->serverPort();
        },
        Qt::BlockingQueuedConnection);
}

FtpServer::~FtpServer() {
    thread.quit();
    thread.wait();
}

void FtpServer::Misbehave(const FtpFaults& faults) {
    QMetaObject::invokeMethod(
        sessions, [this, &faults] { sessions->faults = faults; }, Qt::BlockingQueuedConnection);
}

FtpRecord FtpServer::Record() const {
    FtpRecord copy;
    QMetaObject::invokeMethod(
        sessions, [this, &copy] { copy = sessions->record; }, Qt::BlockingQueuedConnection);
    return copy;
}

void FtpServer::ForgetCommands() {
    QMetaObject::invokeMethod(
        sessions, [this] { sessions->record.commands.clear(); }, Qt::BlockingQueuedConnection);
}

void FtpServer::HangUp(const QByteArray& lastWords) {
    QMetaObject::invokeMethod(
        sessions,
        [this, &lastWords] {
            for (QTcpSocket* session : sessions->control->findChildren<QTcpSocket*>()) {
                if (lastWords.isEmpty()) {
                    ResetConnection(session);
                } else {
                    Say(session, lastWords);
                    session->disconnectFromHost();
                }
            }
        },
        Qt::BlockingQueuedConnection);
}

void FtpSessions::Accept() {
    QTcpSocket* session = control->nextPendingConnection();
    ++record.sessions;
    folder = "/";
    connect(session, &QTcpSocket::readyRead, this, [this, session] { ReadCommands(session); });
    connect(session, &QTcpSocket::disconnected, session, &QObject::deleteLater);
    Say(session, faults.replies.value("", "220-Welcome\r\n220 of two lines"));
}

void FtpSessions::ReadCommands(QTcpSocket* session) {
    while (session->canReadLine()) {
        const QByteArray command = session->readLine().trimmed();
        record.commands.push_back(command);
        const auto blank = command.indexOf(' ');
        const QByteArray verb = blank < 0 ? command : command.left(blank);
        if (faults.replies.contains(verb)) {
            Say(session, faults.replies[verb]);
        } else {
            Obey(session, verb, blank < 0 ? QByteArray() : command.mid(blank + 1));
        }
    }
}

void FtpSessions::Obey(QTcpSocket* session, const QByteArray& verb, const QByteArray& argument) {
    if (verb == "USER") {
        Say(session, "331 Password, please");
    } else if (verb == "PASS") {
        Say(session, "230 Come in");
    } else if (verb == "PWD") {
        Say(session, "257 \"" + folder + "\" it is");
    } else if (verb == "CWD") {
        const bool known = folders.contains(FullPath(argument));
        folder = known ? FullPath(argument) : folder;
        Say(session, known ? "250 There" : "550 No such folder");
    } else if (verb == "MKD") {
        const QByteArray path = FullPath(argument);
        const QByteArray parent = path.left(std::max<qsizetype>(path.lastIndexOf('/'), 1));
        const bool possible = folders.contains(parent);
        if (possible) {
            folders.insert(path);
        }
        Say(session, possible ? "257 Made" : "550 No such folder");
    } else if (verb == "TYPE") {
        Say(session, "200 Fine");
    } else if (verb == "EPSV" || verb == "PASV") {
        OpenPassive(session, verb == "EPSV");
    } else if (verb == "STOR") {
        Receive(session, FullPath(argument));
    } else if (verb == "QUIT") {
        Say(session, "221 Bye");
        session->disconnectFromHost();
    } else {
        Say(session, "500 What?");
    }
}

void FtpSessions::OpenPassive(QTcpSocket* session, bool extended) {
    if (extended && !faults.extendedPassive) {
        Say(session, "500 What?");
        return;
    }
    passive->close();
    passive->listen(QHostAddress::LocalHost);
    const int port = passive->serverPort();
    if (faults.refuseData) {
        passive->close();
    }
    if (extended) {
        Say(session, "229 Here (|||" + QByteArray::number(port) + "|)");
    } else {
        Say(session, "227 Here (127,0,0,1," + QByteArray::number(port / 256) + "," +
                         QByteArray::number(port % 256) + ")");
    }
}

void FtpSessions::Receive(QTcpSocket* session, const QByteArray& path) {
    receiving.clear();
    Say(session, "150 Go on");
    disconnect(passive, &QTcpServer::newConnection, nullptr, nullptr);
    if (passive->hasPendingConnections()) {
        TakeConnection(session, path);
    } else {
        connect(passive, &QTcpServer::newConnection, session,
                [this, session, path] { TakeConnection(session, path); });
    }
}

// The peer may have sent everything and gone before the server looks.
void FtpSessions::TakeConnection(QTcpSocket* session, const QByteArray& path) {
    disconnect(passive, &QTcpServer::newConnection, nullptr, nullptr);
    QTcpSocket* transfer = passive->nextPendingConnection();
    passive->close();
    connect(transfer, &QTcpSocket::readyRead, session,
            [this, session, transfer, path] { TakeBytes(session, transfer, path); });
    connect(transfer, &QTcpSocket::disconnected, session,
            [this, session, transfer, path] { EndUpload(session, transfer, path); });
    TakeBytes(session, transfer, path);
    if (transfer->state() == QAbstractSocket::UnconnectedState) {
        EndUpload(session, transfer, path);
    }
}

void FtpSessions::TakeBytes(QTcpSocket* session, QTcpSocket* transfer, const QByteArray& path) {
    receiving += transfer->readAll();
    if (faults.resets > 0 && !receiving.isEmpty()) {
        --faults.resets;
        transfer->disconnect(session);
        record.files[path] = receiving;
        ResetConnection(transfer);
        ResetConnection(session);
    } else if (faults.roomFor >= 0 && receiving.size() > faults.roomFor) {
        transfer->disconnect(session);
        record.files[path] = receiving.left(faults.roomFor);
        ResetConnection(transfer);
        Say(session, "452 No room left");
    }
}

void FtpSessions::EndUpload(QTcpSocket* session, QTcpSocket* transfer, const QByteArray& path) {
    transfer->disconnect(session);
    record.files[path] = receiving + transfer->readAll();
    transfer->deleteLater();
    if (faults.stall) {
        return;
    }
    Say(session, faults.replies.value("226", "226 Got it"));
    if (faults.closeAfterFile) {
        session->write(faults.farewell);
        session->disconnectFromHost();
    }
}

QByteArray FtpSessions::FullPath(const QByteArray& argument) const {
    if (argument.startsWith('/')) {
        return argument;
    }
    return folder == "/" ? folder + argument : folder + "/" + argument;
}
