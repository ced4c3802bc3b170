// What a server says beside the data, read line by line: the headers of an HTTP response (RFC 9110)
// and the replies of an FTP server (RFC 959).
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

class ServerWords {
public:
    void Clear();

    // One line, with its end. A status line starts the headers of another response, so that those
    // of a redirection don't count.
    void AddLine(const QByteArray& line);

    // Code of the last status line (RFC 9112), such as 404; 0 if there is none.
    int Status() const { return status; }

    // Value of a header without regard to case, the first one of that name; empty if absent.
    QString Header(const QString& name) const;

    // The last complete FTP reply, at most kLongestReply characters; empty if none. The lines of a
    // long one, where some servers give their reason first, are separated by a line feed.
    const QByteArray& Reply() const { return reply; }

    // What has come of a reply whose last line hasn't; empty if none.
    const QByteArray& Unfinished() const { return unfinished; }

private:
    bool AddToReply(const QByteArray& line);
    void AddHeader(const QByteArray& line);

    QByteArray reply;
    QByteArray unfinished;
    QHash<QByteArray, QByteArray> headers; // by lower-case name
    QByteArray lastHeader;                 // its name; empty if a second one of that name
    int status = 0;
};

// What a message box can show of a reply.
inline constexpr int kLongestReply = 400;

// Whether a reply says no: its number is 400 or more.
bool IsRefusal(const QByteArray& reply);

// The last refusal among the replies in `words`, the last of which may lack its end; empty if there
// is none.
QByteArray LastRefusal(const QByteArray& words);
