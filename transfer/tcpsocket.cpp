#include "transfer/tcpsocket.h"

#include <QHostInfo>
#include <QSocketNotifier>
#include <QTimer>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

int SocketPace = 50;

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// A host that says nothing at all, not even no.
constexpr milliseconds kConnectLimit{30'000};

// Moved in one turn, so that eight connections share the event loop: bytes.
constexpr qsizetype kChunk = 64 * 1024;

// How long until the next connect behind an error may start. Each call takes a turn.
milliseconds TakeTurn() {
    static steady_clock::time_point next;
    const auto now = steady_clock::now();
    const auto mine = std::max(now, next);
    next = mine + milliseconds(SocketPace);
    return std::chrono::ceil<milliseconds>(mine - now);
}

// Of the system's error number.
int SocketErrorOf(int reason) {
    switch (reason) {
    case ECONNREFUSED:
        return kErrSocketRefused;
    case ETIMEDOUT:
        return kErrSocketTimeout;
    default:
        return kErrSocketReset;
    }
}

bool IsForLater(int reason) {
    return reason == EAGAIN || reason == EWOULDBLOCK || reason == EINTR;
}

// An address as the system's calls take it; port 0 and no address are "any".
struct SystemAddress {
    SystemAddress(const QHostAddress& address, int port) {
        if (address.protocol() == QAbstractSocket::IPv6Protocol) {
            auto* ipv6 = reinterpret_cast<sockaddr_in6*>(&storage);
            ipv6->sin6_family = AF_INET6;
            ipv6->sin6_port = htons(quint16(port));
            const Q_IPV6ADDR bytes = address.toIPv6Address();
            std::memcpy(&ipv6->sin6_addr, &bytes, sizeof bytes);
            size = sizeof *ipv6;
        } else {
            auto* ipv4 = reinterpret_cast<sockaddr_in*>(&storage);
            ipv4->sin_family = AF_INET;
            ipv4->sin_port = htons(quint16(port));
            ipv4->sin_addr.s_addr = htonl(address.toIPv4Address());
            size = sizeof *ipv4;
        }
    }

    const sockaddr* Get() const { return reinterpret_cast<const sockaddr*>(&storage); }

    sockaddr_storage storage{};
    socklen_t size = 0;
};

} // namespace

TcpSocket::TcpSocket(QObject* parent)
    : QObject(parent), reader(new QSocketNotifier(QSocketNotifier::Read, this)),
      writer(new QSocketNotifier(QSocketNotifier::Write, this)), timer(new QTimer(this)) {
    timer->setSingleShot(true);
    timer->setTimerType(Qt::PreciseTimer); // a coarse one may be early, and with it the next turn
    connect(reader, &QSocketNotifier::activated, this, &TcpSocket::Read);
    connect(writer, &QSocketNotifier::activated, this, [this] {
        if (state == kSocketConnecting) {
            OnConnectEnded();
        } else {
            Write();
        }
    });
    connect(timer, &QTimer::timeout, this, [this] {
        if (handle < 0) {
            LookUp();
        } else {
            TryNextAddress(ETIMEDOUT);
        }
    });
}

TcpSocket::~TcpSocket() {
    Close();
}

void TcpSocket::Connect(const QString& host, int port) {
    if (state != kSocketClosed) {
        throw std::runtime_error("the socket is in use");
    }
    state = kSocketConnecting;
    peerHost = host;
    peerPort = port;
    if (std::exchange(failed, false)) {
        timer->start(TakeTurn());
    } else {
        LookUp();
    }
}

void TcpSocket::SendData(const QByteArray& bytes) {
    if (state == kSocketConnected && !bytes.isEmpty()) {
        toSend = toSend.isEmpty() ? bytes : toSend + bytes;
        writer->setEnabled(true);
    }
}

QByteArray TcpSocket::GetData() {
    return std::exchange(received, {});
}

void TcpSocket::Close() {
    lookup = -1; // what it finds is passed over
    CloseHandle();
    timer->stop();
    addresses.clear();
    received.clear();
    toSend.clear();
    sent = 0;
    state = kSocketClosed;
}

void TcpSocket::LookUp() {
    if (const QHostAddress address(peerHost); !address.isNull()) {
        addresses = {address}; // of which the resolver would look for a name first
        TryNextAddress(0);
    } else {
        lookup = QHostInfo::lookupHost(peerHost, this, &TcpSocket::OnLookedUp);
    }
}

void TcpSocket::OnLookedUp(const QHostInfo& info) {
    if (info.lookupId() != lookup) { // of a connect that was given up
        return;
    }
    lookup = -1;
    addresses = info.addresses();
    if (addresses.isEmpty()) {
        Fail(kErrSocketHostNotFound);
    } else {
        TryNextAddress(0);
    }
}

// `reason` is why the address before could not be had.
void TcpSocket::TryNextAddress(int reason) {
    CloseHandle();
    while (!addresses.isEmpty()) {
        if (StartConnect(addresses.takeFirst())) {
            timer->start(kConnectLimit);
            return;
        }
        reason = errno;
    }
    timer->stop();
    Fail(SocketErrorOf(reason));
}

bool TcpSocket::StartConnect(const QHostAddress& address) {
    const SystemAddress peer(address, peerPort);
    const SystemAddress own(address.protocol() == QAbstractSocket::IPv6Protocol
                                ? QHostAddress::AnyIPv6
                                : QHostAddress::AnyIPv4,
                            localPort);
    handle = socket(peer.storage.ss_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (handle < 0 || (localPort != 0 && bind(handle, own.Get(), own.size) != 0)) {
        return false;
    }
    if (::connect(handle, peer.Get(), peer.size) != 0 && errno != EINPROGRESS) {
        return false;
    }
    writer->setSocket(handle);
    writer->setEnabled(true);
    return true;
}

void TcpSocket::OnConnectEnded() {
    int reason = 0;
    socklen_t size = sizeof reason;
    getsockopt(handle, SOL_SOCKET, SO_ERROR, &reason, &size);
    if (reason != 0) {
        TryNextAddress(reason);
        return;
    }
    const int atOnce = 1; // the end of a request waits for no acknowledgement of its beginning
    setsockopt(handle, IPPROTO_TCP, TCP_NODELAY, &atOnce, sizeof atOnce);
    timer->stop();
    addresses.clear();
    writer->setEnabled(false);
    reader->setSocket(handle);
    reader->setEnabled(true);
    state = kSocketConnected;
    emit Connected();
}

void TcpSocket::Read() {
    std::array<char, kChunk> chunk;
    const ssize_t got = recv(handle, chunk.data(), chunk.size(), 0);
    if (got > 0) {
        received.append(chunk.data(), got);
        emit DataArrived();
    } else if (got == 0) {
        EndInOrder();
    } else if (!IsForLater(errno)) {
        Fail(SocketErrorOf(errno));
    }
}

void TcpSocket::Write() {
    const size_t rest = size_t(std::min(toSend.size() - sent, kChunk));
    const ssize_t taken = send(handle, toSend.constData() + sent, rest, MSG_NOSIGNAL);
    if (taken < 0 && errno == EPIPE) { // a reset behind an end in order
        EndInOrder();
    } else if (taken < 0 && !IsForLater(errno)) {
        Fail(SocketErrorOf(errno));
    } else if (taken > 0 && (sent += taken) == toSend.size()) {
        writer->setEnabled(false);
        toSend.clear();
        sent = 0;
        emit SendCompleted();
    }
}

void TcpSocket::EndInOrder() {
    CloseHandle();
    state = kSocketPeerClosing;
    emit PeerClosed();
}

void TcpSocket::Fail(int number) {
    CloseHandle();
    state = kSocketFailed;
    failed = true;
    emit Failed(number);
}

void TcpSocket::CloseHandle() {
    reader->setEnabled(false);
    writer->setEnabled(false);
    if (handle >= 0) {
        close(std::exchange(handle, -1));
    }
}
