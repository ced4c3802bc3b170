// A server made distant: a relay on the loopback that holds every byte back for a fixed time in
// each direction. It lives in a thread of its own. A connection seems made at once, since no
// program outside the system can hold that back; but the server hears of it, and of what is sent on
// it, no sooner than a handshake over the distance would let it.
#pragma once

#include <atomic>
#include <thread>

// Of FTP the data connections are relayed too.
enum class RelayedProtocol { Ftp, Other };

class DelayRelay {
public:
    // Before the server on `serverPort` of 127.0.0.1, `milliseconds` away.
    DelayRelay(int serverPort, int milliseconds, RelayedProtocol protocol);
    ~DelayRelay();
    DelayRelay(const DelayRelay&) = delete;
    DelayRelay& operator=(const DelayRelay&) = delete;

    // Of the server, or of its control connections.
    int Port() const { return port; }

private:
    std::atomic<bool> ends = false;
    int port = 0;
    std::thread thread;
};
