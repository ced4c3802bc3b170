#include "tests/support/portalpeer.h"

#include "tests/support/sockets.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

class PortalSessions : public QObject {
public:
    explicit PortalSessions(const PortalPeer::Manners& newManners) : manners(newManners) {}

    void Listen() {
        server.listen(QHostAddress::LocalHost);
        connect(&server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* socket = server.nextPendingConnection()) {
                Accept(socket);
            }
        });
    }

    QTcpServer server{this};
    QList<QByteArray> requests;
    int connections = 0;

private:
    void Accept(QTcpSocket* socket);
    void Hear(QTcpSocket* socket, QByteArray& heard, const PortalManners& how);
    static void Say(QTcpSocket* socket, const PortalManners& how);

    PortalPeer::Manners manners;
};

namespace {

// Length of the whole request that begins `heard`; -1 as long as its header isn't there.
qsizetype RequestLength(const QByteArray& heard) {
    const qsizetype header = heard.indexOf("\r\n\r\n") + 4;
    if (header < 4) {
        return -1;
    }
    const qsizetype length = heard.first(header).indexOf("\r\nContent-Length: ");
    return header + (length < 0 ? 0 : heard.mid(length + 18, 9).split('\r').first().toInt());
}

} // namespace

void PortalSessions::Accept(QTcpSocket* socket) {
    const PortalManners how = manners(connections++);
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    if (how.resetAt == 0) {
        ResetSocket(socket);
        return;
    }
    auto* idle = new QTimer(socket);
    connect(idle, &QTimer::timeout, socket, &QTcpSocket::disconnectFromHost);
    if (how.idle >= 0) {
        idle->start(how.idle);
    }
    connect(socket, &QTcpSocket::readyRead, socket,
            [this, socket, how, idle, heard = QByteArray()]() mutable {
                if (how.idle >= 0) {
                    idle->start();
                }
                Hear(socket, heard, how);
            });
}

void PortalSessions::Hear(QTcpSocket* socket, QByteArray& heard, const PortalManners& how) {
    heard += socket->readAll();
    if (how.deaf) {
        socket->disconnectFromHost();
        return;
    }
    if (how.resetAt > 0 && heard.size() >= how.resetAt) {
        ResetSocket(socket);
        return;
    }
    const qsizetype length = RequestLength(heard);
    if (length >= 0 && heard.size() >= length) {
        requests += heard.left(length);
        heard.remove(0, length);
        Say(socket, how);
    }
}

void PortalSessions::Say(QTcpSocket* socket, const PortalManners& how) {
    const qsizetype piece = how.piece > 0 ? how.piece : how.answer.size();
    for (qsizetype at = 0; at < how.answer.size(); at += piece) {
        socket->write(how.answer.mid(at, piece));
        socket->flush();
    }
    if (how.end == PortalManners::End::Close) {
        socket->disconnectFromHost();
    } else if (how.end == PortalManners::End::Reset) {
        ResetSocket(socket);
    }
}

PortalPeer::PortalPeer(const Manners& manners) : sessions(new PortalSessions(manners)) {
    sessions->moveToThread(&thread);
    QObject::connect(&thread, &QThread::finished, sessions, &QObject::deleteLater);
    thread.start();
    QMetaObject::invokeMethod(
        sessions,
        [this] {
            sessions->Listen();
            port = sessions->server.serverPort();
        },
        Qt::BlockingQueuedConnection);
}

PortalPeer::~PortalPeer() {
    thread.quit();
    thread.wait();
}

QList<QByteArray> PortalPeer::Requests() const {
    QList<QByteArray> copy;
    QMetaObject::invokeMethod(
        sessions, [&] { copy = sessions->requests; }, Qt::BlockingQueuedConnection);
    return copy;
}

int PortalPeer::Connections() const {
    int count = 0;
    QMetaObject::invokeMethod(
        sessions, [&] { count = sessions->connections; }, Qt::BlockingQueuedConnection);
    return count;
}

QByteArray LoginPage(const QByteArray& headers, const QByteArray& page) {
    return "HTTP/1.0 200 OK\r\n" + headers + "\r\n" + page;
}
