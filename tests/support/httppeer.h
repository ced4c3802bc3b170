// An HTTP peer on the loopback that answers what a test has written down.
#pragma once

#include <QHash>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

class HttpPeer : public QTcpServer {
public:
    HttpPeer();

    QString Host() const { return QString("127.0.0.1:%1").arg(serverPort()); }
    QString Url(const QString& path) const { return "http://" + Host() + "/" + path; }

    // By path without "/" in front; said two bytes at a time where it is short. Nothing is said to
    // another path.
    QHash<QByteArray, QByteArray> answers;
    bool waits = false; // does not hang up then

    // To whoever has asked last.
    void Say(const QByteArray& bytes) const;
    void HangUp() const;

    QByteArrayList asked; // paths so far

private:
    void Hear(QTcpSocket* socket);

    QPointer<QTcpSocket> last;
};

// A response with the Content-Length of its body, another, or none.
QByteArray HttpAnswer(const QByteArray& body, const QByteArray& status = "200 OK",
                      const QByteArray& length = "=");
