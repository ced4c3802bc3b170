#include "platform/serverwords.h"

#include "platform/ansi.h"

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
        headers.clear();
        lastHeader.clear();
        return;
    }
    // The last line of a reply has a blank behind its three digits, the others a "-".
    if (line.size() > kReplyCodeLength && line[kReplyCodeLength] == ' ' &&
        IsReplyCode(line.left(kReplyCodeLength))) {
        reply = line.trimmed().left(kLongestReply);
        return;
    }
    AddHeader(line);
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
    for (const QByteArray& line : words.split('\n')) {
        if (IsRefusal(line.trimmed())) {
            refusal = line.trimmed().left(kLongestReply);
        }
    }
    return refusal;
}
