// A TCP connection in the event loop, for protocols that the program speaks itself. Names are
// resolved and connections made without waiting; everything is told by signals, and in any slot of
// them the socket may be closed and connected anew.
//
// It stands on the system's calls. The toolkit's socket reports an end in order and a broken
// connection alike where it finds out by writing, and connects again by itself, without a pause or
// a word, to a peer that resets every connection at once.
#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QString>

class QHostInfo;
class QSocketNotifier;
class QTimer;

enum SocketState {
    kSocketClosed = 0,
    kSocketConnecting = 6,
    kSocketConnected = 7,
    kSocketPeerClosing = 8, // the peer has ended the connection; Close ends it on this side
    kSocketFailed = 9       // so has an error
};

// Errors that callers tell apart; every other one is a connection that broke.
inline constexpr int kErrSocketReset = 10054;
inline constexpr int kErrSocketTimeout = 10060;
inline constexpr int kErrSocketRefused = 10061;
inline constexpr int kErrSocketHostNotFound = 11004; // whatever the resolver's reason

// Between two connects behind an error, of all sockets together: milliseconds. Process-wide, so
// that tests need not wait as long as servers may rest.
extern int SocketPace; // 50 at start

class TcpSocket : public QObject {
    Q_OBJECT

public:
    explicit TcpSocket(QObject* parent = nullptr);
    ~TcpSocket() override;

    SocketState State() const { return state; }

    // Port on this side of the next connection; 0, as at start, lets the system choose.
    int LocalPort() const { return localPort; }
    void SetLocalPort(int port) { localPort = port; }

    // Starts a connection and returns at once. Behind an error of this socket it waits for its
    // turn: all sockets together then start one each SocketPace. std::runtime_error if the
    // socket isn't closed.
    void Connect(const QString& host, int port);

    // Hands over bytes, which stay in memory until the system has taken them; nothing unless
    // connected.
    void SendData(const QByteArray& bytes);

    // What has arrived since the last call.
    QByteArray GetData();

    // At once, whatever is under way; nothing is told any more. Bytes that the system hasn't taken
    // yet are dropped.
    void Close();

signals:
    void Connected();
    void DataArrived();
    void PeerClosed();       // in order; what came before has been told
    void Failed(int number); // an error; the socket stays failed until it is closed
    void SendCompleted();    // the system has taken all that was handed over

private:
    void LookUp();
    void OnLookedUp(const QHostInfo& info);
    void TryNextAddress(int reason);
    bool StartConnect(const QHostAddress& address);
    void OnConnectEnded();
    void Read();
    void Write();
    void EndInOrder();
    void Fail(int number);
    void CloseHandle();

    SocketState state = kSocketClosed;
    int handle = -1;
    QSocketNotifier* reader;
    QSocketNotifier* writer; // while a connection is made, or bytes wait to be taken
    QTimer* timer;           // until a connect may start, and until it has taken too long
    QString peerHost;
    int peerPort = 0;
    int localPort = 0;
    int lookup = -1;               // under way
    QList<QHostAddress> addresses; // of the host that have not been tried yet
    QByteArray received;
    QByteArray toSend;
    qsizetype sent = 0;  // bytes of toSend
    bool failed = false; // the last connection
};
