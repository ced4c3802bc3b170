// An FTP server made distant: a relay on the loopback that holds every byte of control and data
// connections back for a fixed time in each direction. It lives in a thread of its own. The
// handshake of a data connection alone is as quick as the loopback: no program outside the system
// can hold that back.
#pragma once

#include <atomic>
#include <thread>

class DelayRelay {
public:
    // Before the server on `serverPort` of 127.0.0.1, `milliseconds` away.
    DelayRelay(int serverPort, int milliseconds);
    ~DelayRelay();
    DelayRelay(const DelayRelay&) = delete;
    DelayRelay& operator=(const DelayRelay&) = delete;

    // Of the control connection.
    int Port() const { return port; }

private:
    std::atomic<bool> ends = false;
    int port = 0;
    std::thread thread;
};
