#include "transfer/transfer.h"

#include "platform/events.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

constexpr int kBound = 5000; // milliseconds

// What a peer does once it has said its answer.
enum class Then { Close, Wait, Reset };

struct Answer {
    QByteArray bytes;
    Then then = Then::Close;
};

// An HTTP peer on the loopback that says to each path what a test has written down, two bytes at a
// time where the answer is short.
class Peer : public QTcpServer {
public:
    Peer() {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Hear(socket); });
        });
    }

    QString Url(const QString& path) const {
        return QString("http://127.0.0.1:%1/%2").arg(serverPort()).arg(path);
    }

    QHash<QByteArray, Answer> answers; // by path without "/" in front
    QList<QByteArray> requests;        // their first lines

private:
    void Hear(QTcpSocket* socket) {
        const QByteArray request = socket->readAll();
        requests.push_back(request.left(request.indexOf('\r')));
        const QByteArray path = request.split(' ').value(1).mid(1);
        const Answer answer = answers.value(path);
        const int step = answer.bytes.size() < 1000 ? 2 : 100'000;
        for (qsizetype at = 0; at < answer.bytes.size(); at += step) {
            socket->write(answer.bytes.mid(at, step));
            socket->flush();
        }
        if (answer.then == Then::Close) {
            socket->disconnectFromHost();
        } else if (answer.then == Then::Reset) {
            socket->abort();
        }
    }
};

class TransferTest : public testing::Test {
protected:
    TransferTest() { Renew(); }

    void Renew() {
        client = std::make_unique<TransferClient>();
        client->SetRequestTimeout(kBound / 1000);
        QObject::connect(client.get(), &TransferClient::StateChanged, &peer, [this](int state) {
            states.push_back(state);
            if (atState) {
                atState(state);
            }
        });
    }

    // To the end of the request, or to that of the client.
    void Finish() {
        QElapsedTimer time;
        time.start();
        while (client && client->StillExecuting() && !time.hasExpired(kBound)) {
            WaitForEvents();
        }
        ASSERT_FALSE(client && client->StillExecuting());
        WaitForEvents(1);
        ServeEvents();
    }

    Peer peer;
    std::unique_ptr<TransferClient> client;
    QList<int> states;
    std::function<void(int)> atState;
};

const QByteArray kOk = "HTTP/1.1 200 OK\r\n";

} // namespace

TEST_F(TransferTest, DocumentsAndFailuresAreToldApart) {
    const QByteArray goTo = "HTTP/1.1 302 Found\r\nX-Kind: old\r\nContent-Length: 3\r\nLocation: ";
    const struct {
        const char* situation;
        Answer answer;
        int code;
        const char* text;
        const char* kind; // the header X-Kind
    } kCases[] = {
        {"whole",
         {kOk + "x-KIND:  a:b \r\nContent-Length: 4\r\n\r\na\xF1o\n", Then::Wait},
         0,
         "año\n",
         "a:b"},
        {"to the end", {kOk + "\r\nabc"}, 0, "abc", ""},
        {"empty", {kOk + "Content-Length: 0\r\n\r\n"}, 0, "", ""},
        {"chunked",
         {kOk +
          "Transfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n2;x=y\r\nde\r\n0\r\nX-Kind: last\r\n\r\n"},
         0,
         "abcde",
         "last"},
        {"error page", {"HTTP/1.1 404 Not\r\nContent-Length: 4\r\n\r\nnone"}, 0, "none", ""},
        {"continued", {"HTTP/1.1 100 Go\r\nX-Kind: no\r\n\r\n" + kOk + "\r\nabc"}, 0, "abc", ""},
        {"two and folded",
         {kOk + "X-Kind: one\r\n two\r\nX-Kind: other\r\n more\r\n\r\n"},
         0,
         "",
         "one two"},
        {"moved", {goTo + "/whole\r\n\r\nold", Then::Wait}, 0, "año\n", "a:b"},
        {"moved to a file", {goTo + "file:///etc/hostname\r\n\r\nold"}, kErrServerReply, "", "old"},
        {"moved for ever", {goTo + "/moved%20for%20ever\r\n\r\nold"}, kErrServerReply, "", "old"},
        {"cut", {kOk + "Content-Length: 9\r\n\r\nabc"}, kErrConnectionReset, "", ""},
        {"chunk cut",
         {kOk + "Transfer-Encoding: chunked\r\n\r\n9\r\nabc"},
         kErrConnectionReset,
         "",
         ""},
        {"reset", {kOk + "Content-Length: 9\r\n\r\nabc", Then::Reset}, kErrConnectionReset, "", ""},
        {"silent", {}, kErrConnectionReset, "", ""},
        {"no HTTP", {"220 Welcome\r\n"}, kErrServerReply, "", ""},
    };
    for (const auto& one : kCases) {
        peer.answers[QByteArray(one.situation).replace(' ', "%20")] = one.answer;
    }
    for (const auto& one : kCases) {
        states.clear();
        EXPECT_EQ(client->OpenURL(peer.Url(QString(one.situation).replace(' ', "%20"))), one.text)
            << one.situation;
        EXPECT_EQ(client->ResponseCode(), one.code) << one.situation;
        EXPECT_EQ(client->ResponseInfo().isEmpty(), one.code == 0) << one.situation;
        EXPECT_EQ(client->GetHeader("X-kind"), one.kind) << one.situation;
        EXPECT_EQ(states.value(0), kStateResolving);
        EXPECT_EQ(states.last(), one.code == 0 ? kStateCompleted : kStateError) << one.situation;
    }
}

TEST_F(TransferTest, ABodyOfAnyBytesIsReadInPieces) {
    QByteArray bytes;
    for (int i = 0; i < 2'000'001; ++i) {
        bytes += static_cast<char>(i * 7 + i / 256);
    }
    peer.answers["update.exe"] = {kOk + "Content-Length: 2000001\r\n\r\n" + bytes, Then::Wait};
    client->Execute(peer.Url("update.exe"), "GET");
    Finish();
    EXPECT_EQ(client->GetHeader("Content-Length"), "2000001");
    EXPECT_EQ(client->GetHeader("Absent"), "");
    EXPECT_EQ(states, (QList<int>{1, 2, 3, 4, 5, 6, 7, 8, 12}));
    EXPECT_EQ(client->GetChunk(0), "");
    EXPECT_EQ(client->GetChunk(-1), "");
    QByteArray read;
    for (QByteArray chunk = client->GetChunk(1024); !chunk.isEmpty();
         chunk = client->GetChunk(1024)) {
        ASSERT_TRUE(chunk.size() == 1024 || read.size() + chunk.size() == bytes.size());
        read += chunk;
    }
    EXPECT_TRUE(read == bytes);
    EXPECT_EQ(peer.requests, QList<QByteArray>{"GET /update.exe HTTP/1.1"});
}

TEST_F(TransferTest, AnUnreachablePeerIsToldByItsNumber) {
    QTcpServer closed;
    closed.listen(QHostAddress::LocalHost);
    const QString refusing = QString("http://127.0.0.1:%1/").arg(closed.serverPort());
    closed.close();
    peer.answers["mute"] = {{}, Then::Wait};
    client->SetRequestTimeout(1);
    const std::pair<QString, int> kCases[] = {
        {refusing, kErrCannotConnect},
        {"http://" + QString(70, u'a') + ".invalid/", kErrHostNotFound}, // asks no name server
        {peer.Url("mute"), kErrTransferTimeout},
        {"", kErrServerReply},
        {"file:///etc/hostname", kErrServerReply},
    };
    for (const auto& [url, code] : kCases) {
        EXPECT_EQ(client->OpenURL(url), "");
        EXPECT_EQ(client->ResponseCode(), code) << url.toStdString();
        EXPECT_EQ(states.last(), kStateError);
    }
}

// In each state, most of them inside libcurl.
TEST_F(TransferTest, ASlotMayCancelAndAskAnewOrDeleteTheClient) {
    peer.answers["a"] = {kOk + "Content-Length: 3\r\n\r\nold", Then::Wait};
    peer.answers["b"] = {kOk + "Content-Length: 3\r\n\r\nnew", Then::Wait};
    for (int at : {1, 2, 3, 4, 5, 6, 7, 8, 12}) {
        Renew();
        atState = [&](int state) {
            if (state == at) {
                atState = {};
                client->Cancel();
                EXPECT_FALSE(client->StillExecuting());
                EXPECT_EQ(client->ResponseCode(), at < kStateReceived ? kErrConnectionAborted : 0);
                client->Execute(peer.Url("b"), "GET");
                ServeEvents();
            }
        };
        client->Execute(peer.Url("a"), "GET");
        Finish();
        EXPECT_EQ(client->GetChunk(9), "new") << at;
        EXPECT_FALSE(atState) << at;

        atState = [&](int state) {
            if (state == at) {
                atState = {};
                client.reset();
                ServeEvents();
            }
        };
        Renew();
        client->Execute(peer.Url("a"), "GET");
        Finish();
        EXPECT_EQ(client, nullptr) << at;
    }
}

TEST_F(TransferTest, ASecondRequestIsRefusedAndTheFirstGoesOn) {
    peer.answers["a"] = {kOk + "Content-Length: 3\r\n\r\nabc", Then::Wait};
    client->Execute(peer.Url("a"), "GET");
    EXPECT_EQ(client->OpenURL(peer.Url("b")), "");
    EXPECT_EQ(states.last(), kStateError);
    Finish();
    EXPECT_EQ(client->GetChunk(9), "abc");
    EXPECT_EQ(states.last(), kStateCompleted);
}
