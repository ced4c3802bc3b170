#include "tests/support/httppeer.h"

HttpPeer::HttpPeer() {
    listen(QHostAddress::LocalHost);
    connect(this, &QTcpServer::newConnection, this, [this] {
        QTcpSocket* socket = nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Hear(socket); });
    });
}

void HttpPeer::Say(const QByteArray& bytes) const {
    last->write(bytes);
    last->flush();
}

void HttpPeer::HangUp() const {
    last->disconnectFromHost();
}

void HttpPeer::Hear(QTcpSocket* socket) {
    last = socket;
    asked += socket->readAll().split(' ').value(1).mid(1);
    const QByteArray answer = answers.value(asked.last());
    const int step = answer.size() < 1000 ? 2 : 100'000;
    for (qsizetype at = 0; at < answer.size(); at += step) {
        Say(answer.mid(at, step));
    }
    if (!waits) {
        HangUp();
    }
}

QByteArray HttpAnswer(const QByteArray& body, const QByteArray& status, const QByteArray& length) {
    const QByteArray bytes = length == "=" ? QByteArray::number(body.size()) : length;
    const QByteArray header = bytes.isEmpty() ? "" : "Content-Length: " + bytes + "\r\n";
    return "HTTP/1.1 " + status + "\r\n" + header + "\r\n" + body;
}
