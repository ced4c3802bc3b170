// A small FTP server on the loopback that says what a script has it say, also what no good server
// does. It lives in a thread of its own, as a server far away would. The lines of a script:
//
//   * connected          waits for somebody to connect
//   > COMMAND            waits for this command
//   = BYTES              waits for a file with these bytes; "= some": for the first ones of a file
//   < REPLY              is said; PORT in it opens a port for a file, PORT,PORT in two numbers
//   ! close              ends the connection in order
//   ! reset              cuts it, and that of a file
//   ! cut                cuts that of a file alone
//   ! deaf               closes the port for a file
//
// Bytes that are no printable ASCII are written as \xHH, a file of over 300 bytes by their number.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>
#include <QThread>

// What the server has seen.
struct FtpRecord {
    QList<QByteArray> transcript;       // all that has happened, as lines of a script
    QList<QByteArray> commands;         // of all sessions in order, arguments and all
    QMap<QByteArray, QByteArray> files; // by the name that they were sent under
    int sessions = 0;

    int Count(const QByteArray& verb) const;
};

class FtpSessions;

class FtpServer {
public:
    // Follows a script to its end, and hangs up where somebody doesn't. Without one it does what it
    // is asked, whatever the order.
    explicit FtpServer(const QList<QByteArray>& script = {});

    ~FtpServer();
    FtpServer(const FtpServer&) = delete;
    FtpServer& operator=(const FtpServer&) = delete;

    int Port() const { return port; }

    // From now on a verb is answered by these lines of a script in place of the usual ones.
    void Answer(const QByteArray& verb, const QList<QByteArray>& lines);

    // From now on everything is answered as usual.
    void Behave();

    // Does these lines now, such as {"< 421 Timeout", "! close"}.
    void Play(const QList<QByteArray>& lines);

    FtpRecord Record() const; // as of now
    void ForgetCommands();

private:
    void Do(const std::function<void()>& act) const;

    QThread thread;
    FtpSessions* sessions; // lives in the thread
    int port = 0;
};
