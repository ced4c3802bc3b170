#include "bench/delayrelay.h"

#include <arpa/inet.h>
#include <chrono>
#include <deque>
#include <fcntl.h>
#include <list>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <regex>
#include <string>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

// What a handshake costs before the server hears of a connection, in ways of one delay.
constexpr int kHandshake = 3;

constexpr int kIdleWait = 50; // milliseconds, after which the end of the relay is looked for
constexpr std::chrono::milliseconds kFullWait(1); // until a receiver that is full is tried again

// Ports that the relay hands out, below those that the system hands out by itself.
constexpr int kFirstPort = 10000;
constexpr int kPorts = 2000;

sockaddr_in Loopback(int port) {
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

void SetUpSocket(int socket) {
    const int on = 1;
    setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    fcntl(socket, F_SETFL, O_NONBLOCK);
}

// Listens on the next port that is free; gives the socket.
int Listen(int& port) {
    static int last = kFirstPort + static_cast<int>(getpid()) % kPorts;
    for (;;) {
        last = last + 1 < kFirstPort + kPorts ? last + 1 : kFirstPort;
        const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        const int on = 1;
        setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
        const sockaddr_in address = Loopback(last);
        if (bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
            listen(listener, 8) == 0) {
            fcntl(listener, F_SETFL, O_NONBLOCK);
            port = last;
            return listener;
        }
        close(listener);
    }
}

int Connect(int port) {
    const int made = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_in address = Loopback(port);
    if (connect(made, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        close(made);
        return -1;
    }
    SetUpSocket(made);
    return made;
}

struct Chunk {
    Clock::time_point due;
    std::string bytes; // none: the sender is done
};

// One connection: its two ends, and what is on the way to each.
struct Link {
    int ends[2] = {-1, -1}; // client, server; the latter is made when the handshake would be over
    int serverPort = 0;
    Clock::time_point connects;
    bool namesPorts = false;
    bool ended[2] = {false, false};
    std::deque<Chunk> toward[2]; // indexed like ends
    std::string line;            // of the server's reply, not yet whole
};

class Traffic {
public:
    Traffic(int listener, int serverPort, int milliseconds, RelayedProtocol protocol)
        : delay(milliseconds), listeners{{listener, serverPort, protocol == RelayedProtocol::Ftp,
                                          false}} {}

    ~Traffic() {
        for (const Link& link : links) {
            close(link.ends[0]);
            close(link.ends[1]);
        }
        for (const Listener& listener : listeners) {
            close(listener.socket);
        }
    }

    void Turn() {
        std::vector<pollfd> waits;
        for (const Listener& listener : listeners) {
            waits.push_back({listener.socket, POLLIN, 0});
        }
        for (const Link& link : links) {
            for (int end : {0, 1}) {
                if (link.ends[end] >= 0 && !link.ended[end]) {
                    waits.push_back({link.ends[end], POLLIN, 0});
                }
            }
        }
        const auto left = std::chrono::ceil<std::chrono::nanoseconds>(NextDue() - Clock::now());
        const auto count = std::max<long long>(left.count(), 0);
        const timespec wait = {time_t(count / 1'000'000'000), long(count % 1'000'000'000)};
        ppoll(waits.data(), waits.size(), &wait, nullptr);
        Accept();
        for (auto link = links.begin(); link != links.end();) {
            link = Serve(*link) ? std::next(link) : links.erase(link);
        }
    }

private:
    struct Listener {
        int socket;
        int serverPort;
        bool namesPorts; // replies of the server name ports
        bool once;       // serves one connection
    };

    Clock::time_point NextDue() const {
        auto next = Clock::now() + std::chrono::milliseconds(kIdleWait);
        for (const Link& link : links) {
            next = link.ends[1] < 0 ? std::min(next, link.connects) : next;
            for (int end : {0, 1}) {
                if (!link.toward[end].empty() && link.ends[end] >= 0) {
                    next = std::min(next, link.toward[end].front().due);
                }
            }
        }
        return next;
    }

    void Accept() {
        for (size_t place = 0; place < listeners.size(); ++place) {
            const Listener listener = listeners[place];
            const int client = accept4(listener.socket, nullptr, nullptr, SOCK_CLOEXEC);
            if (client < 0) {
                continue;
            }
            SetUpSocket(client);
            Link& link = links.emplace_back();
            link.ends[0] = client;
            link.serverPort = listener.serverPort;
            link.connects = Clock::now() + kHandshake * delay;
            link.namesPorts = listener.namesPorts;
            if (listener.once) {
                close(listener.socket);
                listeners.erase(listeners.begin() + static_cast<long>(place--));
            }
        }
    }

    // False once both sides are done, and the connection is closed.
    bool Serve(Link& link) {
        if (link.ends[1] < 0 && link.connects <= Clock::now()) {
            link.ends[1] = Connect(link.serverPort);
            if (link.ends[1] < 0) {
                close(link.ends[0]);
                return false;
            }
        }
        for (int end : {0, 1}) {
            Receive(link, end);
        }
        if (Deliver(link, 0) && Deliver(link, 1)) {
            const bool over =
                link.ended[0] && link.ended[1] && link.toward[0].empty() && link.toward[1].empty();
            if (!over) {
                return true;
            }
        }
        close(link.ends[0]);
        close(link.ends[1]);
        return false;
    }

    void Receive(Link& link, int end) {
        char bytes[65536];
        while (link.ends[end] >= 0 && !link.ended[end]) {
            const ssize_t got = recv(link.ends[end], bytes, sizeof bytes, 0);
            if (got < 0 && errno == EAGAIN) {
                return;
            }
            link.ended[end] = got <= 0;
            std::string received(bytes, size_t(std::max<ssize_t>(got, 0)));
            if (link.namesPorts && end == 1 && got > 0) {
                received = WithOwnPorts(link, received);
                if (received.empty()) {
                    continue;
                }
            }
            link.toward[1 - end].push_back({Clock::now() + delay, std::move(received)});
        }
    }

    // Whole lines of the server's replies, with ports of the relay in place of the server's.
    std::string WithOwnPorts(Link& link, const std::string& received) {
        static const std::regex extended(R"((229 .*\|\|\|)(\d+)(\|.*\n))");
        static const std::regex plain(R"((227 .*\d+,\d+,\d+,\d+,)(\d+),(\d+)(.*\n))");
        std::string lines;
        for (const char letter : received) {
            link.line += letter;
            if (letter != '\n') {
                continue;
            }
            std::smatch parts;
            int own = 0;
            if (std::regex_match(link.line, parts, extended)) {
                listeners.push_back({Listen(own), std::stoi(parts[2]), false, true});
                lines += parts[1].str() + std::to_string(own) + parts[3].str();
            } else if (std::regex_match(link.line, parts, plain)) {
                const int port = std::stoi(parts[2]) * 256 + std::stoi(parts[3]);
                listeners.push_back({Listen(own), port, false, true});
                lines += parts[1].str() + std::to_string(own / 256) + "," +
                         std::to_string(own % 256) + parts[4].str();
            } else {
                lines += link.line;
            }
            link.line.clear();
        }
        return lines;
    }

    // What is due; false if the receiver is gone.
    static bool Deliver(Link& link, int end) {
        std::deque<Chunk>& queue = link.toward[end];
        while (link.ends[end] >= 0 && !queue.empty() && queue.front().due <= Clock::now()) {
            std::string& bytes = queue.front().bytes;
            if (bytes.empty()) {
                shutdown(link.ends[end], SHUT_WR);
            } else {
                const ssize_t sent = send(link.ends[end], bytes.data(), bytes.size(), MSG_NOSIGNAL);
                if (sent < 0 && errno != EAGAIN) {
                    return false;
                }
                bytes.erase(0, size_t(std::max<ssize_t>(sent, 0)));
                if (!bytes.empty()) {
                    queue.front().due = Clock::now() + kFullWait;
                    return true;
                }
            }
            queue.pop_front();
        }
        return true;
    }

    std::chrono::milliseconds delay;
    std::vector<Listener> listeners;
    std::list<Link> links;
};

} // namespace

DelayRelay::DelayRelay(int serverPort, int milliseconds, RelayedProtocol protocol) {
    const int listener = Listen(port);
    thread = std::thread([this, listener, serverPort, milliseconds, protocol] {
        Traffic traffic(listener, serverPort, milliseconds, protocol);
        while (!ends) {
            traffic.Turn();
        }
    });
}

DelayRelay::~DelayRelay() {
    ends = true;
    thread.join();
}
