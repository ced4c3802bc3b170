#include "transfer/tcpsocket.h"

#include "platform/events.h"
#include "tests/support/sockets.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>
#include <gtest/gtest.h>
#include <sys/socket.h>

namespace {

constexpr int kBound = 5000; // milliseconds

class TcpSocketTest : public testing::Test {
protected:
    TcpSocketTest() {
        server.listen(QHostAddress::LocalHost);
        QObject::connect(&server, &QTcpServer::newConnection, &server, [this] {
            peer = server.nextPendingConnection();
            if (onAccept) {
                onAccept(peer);
            }
        });
        QObject::connect(&socket, &TcpSocket::Connected, &server, [this] { Note("connected"); });
        QObject::connect(&socket, &TcpSocket::PeerClosed, &server, [this] { Note("closed"); });
        QObject::connect(&socket, &TcpSocket::SendCompleted, &server, [this] { Note("sent"); });
        QObject::connect(&socket, &TcpSocket::Failed, &server,
                         [this](int number) { Note(QString::number(number)); });
    }

    void Note(const QString& event) {
        events += QString("%1:%2").arg(event).arg(socket.State());
        if (onEvent) {
            onEvent();
        }
    }

    void WaitFor(const std::function<bool()>& done) const {
        QElapsedTimer time;
        time.start();
        while (!done() && !time.hasExpired(kBound)) {
            WaitForEvents();
        }
        ASSERT_TRUE(done()) << events.join(u' ').toStdString();
    }

    void Connect() { socket.Connect("127.0.0.1", server.serverPort()); }

    QTcpServer server;
    QTcpSocket* peer = nullptr;
    std::function<void(QTcpSocket*)> onAccept;
    std::function<void()> onEvent;
    TcpSocket socket;
    QStringList events; // each with the state in its slot
};

} // namespace

TEST_F(TcpSocketTest, AConversationPassesThroughItsStates) {
    QByteArray bytes;
    for (int i = 0; i < 3'000'000; ++i) {
        bytes += static_cast<char>(i * 7 + i / 256);
    }
    EXPECT_EQ(socket.State(), kSocketClosed);
    Connect();
    EXPECT_EQ(socket.State(), kSocketConnecting);
    EXPECT_THROW(Connect(), std::runtime_error);
    WaitFor([&] { return peer != nullptr && socket.State() == kSocketConnected; });
    socket.SendData(bytes.left(1'000'000));
    socket.SendData(bytes.mid(1'000'000));
    QByteArray heard;
    WaitFor([&] {
        heard += peer->readAll();
        return heard.size() == bytes.size();
    });
    EXPECT_TRUE(heard == bytes);
    peer->write("good-");
    peer->flush();
    peer->write("bye");
    peer->disconnectFromHost();
    WaitFor([&] { return socket.State() == kSocketPeerClosing; });
    EXPECT_EQ(socket.GetData(), "good-bye");
    EXPECT_EQ(events, QStringList({"connected:7", "sent:7", "closed:8"}));
    socket.Close();
    socket.SendData("nobody hears it");
    EXPECT_EQ(socket.State(), kSocketClosed);
    EXPECT_EQ(socket.GetData(), "");
}

TEST_F(TcpSocketTest, AnEndInOrderAndABrokenConnectionAreToldApartAlsoWhileSending) {
    const auto shutsDown = [](QTcpSocket* accepted) {
        ::shutdown(static_cast<int>(accepted->socketDescriptor()), SHUT_WR);
    };
    const auto resetsAtOnce = [](QTcpSocket* accepted) { ResetSocket(accepted); };
    const auto resetsLater = [](QTcpSocket* accepted) {
        QObject::connect(accepted, &QTcpSocket::readyRead, accepted,
                         [accepted] { ResetSocket(accepted); });
    };
    const std::pair<std::function<void(QTcpSocket*)>, const char*> kCases[] = {
        {shutsDown, "closed:8"}, {resetsAtOnce, "10054:9"}, {resetsLater, "10054:9"}};
    SocketPace = 0;
    for (int round = 0; round < 60; ++round) {
        const auto& [act, end] = kCases[round % 3];
        onAccept = act;
        events.clear();
        Connect();
        WaitFor([&] { return socket.State() != kSocketConnecting; });
        socket.SendData(QByteArray(20'000'000, 'x'));
        WaitFor([&] { return socket.State() > kSocketConnected; });
        EXPECT_EQ(events.last(), end) << round;
        socket.Close();
    }
}

TEST_F(TcpSocketTest, APeerThatCantBeReachedIsToldByItsNumber) {
    const std::pair<QString, const char*> kHosts[] = {{"", "11004:9"},
                                                      {QString(70, u'a') + ".invalid", "11004:9"},
                                                      {"a b", "11004:9"},
                                                      {"127.0.0.1", "10061:9"}};
    SocketPace = 0;
    for (const auto& [host, event] : kHosts) {
        socket.Connect(host, 1);
        WaitFor([&] { return socket.State() == kSocketFailed; });
        EXPECT_EQ(events.last(), event) << host.toStdString();
        socket.Close();
    }
}

TEST_F(TcpSocketTest, ConnectsBehindAnErrorWaitForTheirTurnAndOthersDoNot) {
    SocketPace = 40;
    constexpr int kFailures = 9;
    onEvent = [this] {
        socket.Close();
        if (events.size() <= kFailures) {
            socket.Connect("127.0.0.1", 1);
        }
    };
    QElapsedTimer time;
    time.start();
    socket.Connect("127.0.0.1", 1);
    WaitFor([&] { return events.size() > kFailures; });
    EXPECT_GE(time.elapsed(), (kFailures - 1) * SocketPace);
    EXPECT_EQ(events.count("10061:9"), kFailures + 1);
    SocketPace = 3'600'000; // would take the rest of the day
    TcpSocket other;
    int connects = 0;
    onAccept = [](QTcpSocket* accepted) { accepted->disconnectFromHost(); };
    QObject::connect(&other, &TcpSocket::PeerClosed, &server, [&] {
        other.Close();
        ++connects;
        other.Connect("127.0.0.1", server.serverPort());
    });
    other.Connect("127.0.0.1", server.serverPort());
    WaitFor([&] { return connects > 20; });
    EXPECT_EQ(other.State(), kSocketConnecting);
}

TEST_F(TcpSocketTest, AConnectThatIsGivenUpDoesNotDisturbTheNext) {
    for (int round = 0; round < 10; ++round) {
        events.clear();
        for (int given = 0; given < 3; ++given) {
            socket.Connect("localhost", server.serverPort());
            WaitForEvents(given);
            socket.Close();
        }
        events.clear();
        socket.Connect("localhost", server.serverPort());
        WaitFor([&] { return socket.State() == kSocketConnected; });
        WaitForEvents(10);
        WaitForEvents(10);
        EXPECT_EQ(events, QStringList("connected:7"));
        socket.Close();
    }
}
