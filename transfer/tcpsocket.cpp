#include "transfer/tcpsocket.h"

#include <QNetworkProxy>
#include <QTcpSocket>
#include <QTimer>
#include <chrono>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <stdexcept>
#include <unistd.h>

int SocketPace = 50;

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// How long until the next connect behind an error may start. Each call takes a turn.
milliseconds TakeTurn() {
    static steady_clock::time_point next;
    const auto now = steady_clock::now();
    const auto mine = std::max(now, next);
    next = mine + milliseconds(SocketPace);
    return std::chrono::ceil<milliseconds>(mine - now);
}

int ErrorNumber(QAbstractSocket::SocketError error) {
    switch (error) {
    case QAbstractSocket::HostNotFoundError:
        return kErrSocketHostNotFound;
    case QAbstractSocket::ConnectionRefusedError:
        return kErrSocketRefused;
    case QAbstractSocket::SocketTimeoutError:
        return kErrSocketTimeout;
    default:
        return kErrSocketReset;
    }
}

} // namespace

TcpSocket::TcpSocket(QObject* parent) : QObject(parent), turn(new QTimer(this)) {
    turn->setSingleShot(true);
}

TcpSocket::~TcpSocket() {
    Close();
}

void TcpSocket::Connect(const QString& host, int port) {
    if (state != kSocketClosed) {
        throw std::runtime_error("the socket is in use");
    }
    turn->disconnect(this);
    turn->callOnTimeout(this, [this, host, port] { Open(host, port); });
    if (!std::exchange(failed, false)) {
        Open(host, port);
        return;
    }
    state = kSocketConnecting;
    turn->start(TakeTurn());
}

void TcpSocket::Open(const QString& host, int port) {
    socket = std::make_unique<QTcpSocket>();
    socket->setProxy(QNetworkProxy::NoProxy);
    if (localPort != 0 && !socket->bind(quint16(localPort))) {
        Close();
        throw std::runtime_error("the local port is taken");
    }
    state = kSocketConnecting;
    connect(socket.get(), &QTcpSocket::connected, this, &TcpSocket::OnConnected);
    connect(socket.get(), &QTcpSocket::readyRead, this, &TcpSocket::DataArrived);
    connect(socket.get(), &QTcpSocket::errorOccurred, this, &TcpSocket::OnError);
    connect(socket.get(), &QTcpSocket::bytesWritten, this, [this] {
        if (socket->bytesToWrite() == 0) {
            emit SendCompleted();
        }
    });
    socket->connectToHost(host, quint16(port));
}

void TcpSocket::SendData(const QByteArray& bytes) {
    if (state == kSocketConnected) {
        socket->write(bytes);
    }
}

QByteArray TcpSocket::GetData() {
    return socket ? socket->readAll() : QByteArray();
}

void TcpSocket::Close() {
    state = kSocketClosed;
    turn->stop();
    if (socket) { // which may be the one that has just called
        socket->disconnect(this);
        socket->abort();
        socket.release()->deleteLater();
    }
    if (witness >= 0) {
        close(std::exchange(witness, -1));
    }
}

void TcpSocket::OnConnected() {
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    witness = fcntl(static_cast<int>(socket->socketDescriptor()), F_DUPFD_CLOEXEC, 0);
    state = kSocketConnected;
    emit Connected();
}

// The toolkit reports an end in order and a broken connection on which it was writing alike, and
// has closed its handle by then.
bool TcpSocket::EndedInOrder() const {
    tcp_info info{};
    socklen_t size = sizeof info;
    return getsockopt(witness, IPPROTO_TCP, TCP_INFO, &info, &size) == 0 &&
           info.tcpi_state == TCP_CLOSE_WAIT;
}

void TcpSocket::OnError() {
    if (socket->error() == QAbstractSocket::RemoteHostClosedError && EndedInOrder()) {
        state = kSocketPeerClosing;
        emit PeerClosed();
    } else {
        Fail(ErrorNumber(socket->error()));
    }
}

void TcpSocket::Fail(int number) {
    state = kSocketFailed;
    failed = true;
    emit Failed(number);
}
