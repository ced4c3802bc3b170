// What servers say comes from anywhere: headers and replies of any bytes are read, headers found by
// their names, and nothing that a message box shows is longer than it may be.
#include "transfer/serverwords.h"

#include <cstdlib>

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

bool FitsBox(const QByteArray& reply) {
    return reply.size() <= kLongestReply;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    ServerWords words;
    for (const QByteArray& line : bytes.split('\n')) {
        words.AddLine(line + "\n");
        Require(FitsBox(words.Reply()));
    }
    // A header set behind all others counts as long as nothing of that name came before.
    words.AddLine("HTTP/1.1 200 OK\r\n");
    Require(words.Header("Content-Length").isEmpty());
    words.AddLine("content-LENGTH: 12\r\n");
    Require(words.Header("Content-Length") == "12");
    const QByteArray refusal = LastRefusal(bytes);
    Require(FitsBox(refusal) && (refusal.isEmpty() || IsRefusal(refusal)));
    return 0;
}
