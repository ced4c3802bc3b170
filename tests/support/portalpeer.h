// A portal on the loopback that does with each connection what a test has it do, also what no good
// portal does. It lives in a thread of its own, as one far away would.
#pragma once

#include <QByteArray>
#include <QList>
#include <QThread>
#include <functional>

struct PortalManners {
    QByteArray answer = "HTTP/1.0 200 OK\r\n\r\n"; // said when a whole request has come
    int piece = 0;                                 // bytes of it at once; 0: all
    enum class End { Close, Reset, StayOpen } end = End::Close; // what follows it
    qsizetype resetAt = -1; // cuts the connection when so many bytes have come; -1: never
    int idle = -1;          // closes it in order after so long without a byte: milliseconds
    bool deaf = false;      // closes it in order instead of hearing the first byte
};

class PortalSessions;

class PortalPeer {
public:
    // `manners` is asked, in the peer's thread, for each connection by its number from 0.
    using Manners = std::function<PortalManners(int connection)>;
    explicit PortalPeer(const Manners& manners);
    ~PortalPeer();
    PortalPeer(const PortalPeer&) = delete;
    PortalPeer& operator=(const PortalPeer&) = delete;

    int Port() const { return port; }

    QList<QByteArray> Requests() const; // that have come whole, in that order
    int Connections() const;

private:
    QThread thread;
    PortalSessions* sessions; // lives in the thread
    int port = 0;
};

// An answer to the log-in: these lines of its header, and the text of its page.
QByteArray LoginPage(const QByteArray& headers, const QByteArray& page);
