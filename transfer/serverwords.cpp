#include "transfer/serverwords.h"

#include "text/ansi.h"

#include <algorithm>

namespace {

constexpr char kStatusLine[] = "HTTP/";
constexpr int kReplyCodeLength = 3;
constexpr char kFirstRefusal = '4'; // replies from 400 on are refusals
constexpr char kLastRefusal = '5';

bool IsReplyCode(const QByteArray& text) {
    return text.size() == kReplyCodeLength && std::all_of(text.begin(), text.end(), [](char digit) {
               return digit >= '0' && digit <= '9';
           });
}

} // namespace

void ServerWords::Clear() {
    *this = {};
}

void ServerWords::AddLine(const QByteArray& line) {
    if (line.startsWith(kStatusLine)) {
        status = line.mid(line.indexOf(' ') + 1).left(kReplyCodeLength).toInt();
        headers.clear();
        lastHeader.clear();
        unfinished.clear();
        return;
    }
    if (!AddToReply(line)) {
        AddHeader(line);
    }
}

// Whether it belongs to a reply. The last line of one has a blank behind its three digits, the
// first of several a "-"; those between may look like anything.
bool ServerWords::AddToReply(const QByteArray& line) {
    const QByteArray code = line.left(kReplyCodeLength);
    const char next = line.size() > kReplyCodeLength ? line[kReplyCodeLength] : '\0';
    const bool numbered = IsReplyCode(code) && (next == ' ' || next == '-');
    if (unfinished.isEmpty() && !numbered) {
        return false;
    }
    const QByteArray before = unfinished.isEmpty() ? QByteArray() : unfinished + "\n";
    const QByteArray text = (before + line.trimmed()).left(kLongestReply);
    const bool last = next == ' ' && (unfinished.isEmpty() || unfinished.startsWith(code));
    (last ? reply : unfinished) = text;
    if (last) {
        unfinished.clear();
    }
    return true;
}

// A line that starts with a blank goes on with the value of the one before.
void ServerWords::AddHeader(const QByteArray& line) {
    if (line.startsWith(' ') || line.startsWith('\t')) {
        if (!lastHeader.isEmpty()) {
            headers[lastHeader] = (headers[lastHeader] + " " + line.trimmed()).trimmed();
        }
        return;
    }
    const auto colon = line.indexOf(':');
    const QByteArray name = line.left(std::max<qsizetype>(colon, 0)).trimmed().toLower();
    const bool known = headers.contains(name);
    lastHeader = known ? QByteArray() : name;
    if (!name.isEmpty() && !known) {
        headers[name] = line.mid(colon + 1).trimmed();
    }
}

QString ServerWords::Header(const QString& name) const {
    return FromAnsi(headers.value(ToAnsi(name).toLower()));
}

bool IsRefusal(const QByteArray& reply) {
    return IsReplyCode(reply.left(kReplyCodeLength)) && reply[0] >= kFirstRefusal &&
           reply[0] <= kLastRefusal;
}

QByteArray LastRefusal(const QByteArray& words) {
    QByteArray refusal;
    ServerWords replies;
    for (const QByteArray& line : words.split('\n')) {
        replies.AddLine(line);
        for (const QByteArray& said : {replies.Reply(), replies.Unfinished()}) {
            refusal = IsRefusal(said) ? said : refusal;
        }
    }
    return refusal.trimmed();
}
