// A small FTP server on the loopback that does what a test asks of it, also what no good server
// does: refuse a command, cut a connection in the middle of a file, run out of room, stand still.
// It lives in a thread of its own, as a server far away would.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>
#include <QSet>
#include <QThread>

// What the server does wrong.
struct FtpFaults {
    // The reply to a verb in place of the proper one, such as {"MKD", "550 No"}; to "" the
    // greeting, to "226" the one behind an upload.
    QHash<QByteArray, QByteArray> replies;

    bool extendedPassive = true; // EPSV is known
    int resets = 0;   // so many uploads are cut, both connections, after their first bytes
    int roomFor = -1; // so many bytes of a file fit, then 452 on a cut data connection; -1: any
    bool refuseData = false;     // nothing listens on the passive port
    bool closeAfterFile = false; // the control connection is closed after each upload
    QByteArray farewell;         // what is said before that
    bool stall = false;          // an upload gets no final reply
};

// What it has seen and holds.
struct FtpRecord {
    QMap<QByteArray, QByteArray> files; // by full path in Windows-1252
    QList<QByteArray> commands;         // of all sessions in order, arguments and all
    int sessions = 0;

    int Count(const QByteArray& verb) const;
};

class FtpSessions;

class FtpServer {
public:
    // With the folders that exist besides "/".
    explicit FtpServer(const QSet<QByteArray>& folders);
    ~FtpServer();
    FtpServer(const FtpServer&) = delete;
    FtpServer& operator=(const FtpServer&) = delete;

    int Port() const { return port; }
    void Misbehave(const FtpFaults& faults);
    FtpRecord Record() const; // as of now
    void ForgetCommands();

    // Closes every control connection with these words, or resets it without any.
    void HangUp(const QByteArray& lastWords = {});

private:
    QThread thread;
    FtpSessions* sessions; // lives in the thread
    int port = 0;
};
