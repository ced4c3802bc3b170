#include "transfer/transfer.h"

#include "platform/events.h"
#include "tests/support/files.h"
#include "tests/support/httppeer.h"
#include "transfer/signature.h"

#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

constexpr int kBound = 5000; // milliseconds

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

    HttpPeer peer;
    std::unique_ptr<TransferClient> client;
    QList<int> states;
    std::function<void(int)> atState;
};

const QByteArray kOk = "HTTP/1.1 200 OK\r\n";

} // namespace

TEST_F(TransferTest, DocumentsAndFailuresAreToldApart) {
    const QByteArray chunked = kOk + "Transfer-Encoding: chunked\r\n\r\n";
    const QByteArray goTo = "HTTP/1.1 302 Found\r\nX-Kind: old\r\nContent-Length: 3\r\nLocation: ";
    const struct {
        const char* situation;
        QByteArray answer;
        int code;
        const char* text;
        const char* kind; // the header X-Kind
        int status = 200;
    } kCases[] = {
        {"whole", kOk + "x-KIND:  a:b \r\nContent-Length: 4\r\n\r\na\xF1o\n", 0, "año\n", "a:b"},
        {"to-the-end", kOk + "\r\nabc", 0, "abc", ""},
        {"chunked", chunked + "3\r\nabc\r\n2\r\nde\r\n0\r\n\r\n", 0, "abcde", ""},
        {"error-page", "HTTP/1.1 404 Not\r\nContent-Length: 4\r\n\r\nnone", 0, "none", "", 404},
        {"moved", goTo + "/whole\r\n\r\nold", 0, "año\n", "a:b"},
        {"moved-to-a-file", goTo + "file:///etc/hostname\r\n\r\nold", kErrServerReply, "", "old",
         302},
        {"cut", kOk + "Content-Length: 9\r\n\r\nabc", kErrConnectionReset, "", ""},
        {"chunk-cut", chunked + "9\r\nabc", kErrConnectionReset, "", ""},
        {"silent", "", kErrConnectionReset, "", "", 0},
    };
    for (const auto& one : kCases) {
        peer.answers[one.situation] = one.answer;
    }
    for (const auto& one : kCases) {
        EXPECT_EQ(client->OpenURL(peer.Url(one.situation)), one.text) << one.situation;
        EXPECT_EQ(client->ResponseCode(), one.code) << one.situation;
        EXPECT_EQ(client->ResponseInfo().isEmpty(), one.code == 0) << one.situation;
        EXPECT_EQ(client->GetHeader("X-kind"), one.kind) << one.situation;
        EXPECT_EQ(client->HttpStatus(), one.status) << one.situation;
        EXPECT_EQ(states.last(), one.code == 0 ? kStateCompleted : kStateError) << one.situation;
    }
}

TEST_F(TransferTest, ABodyOfAnyBytesIsReadInPieces) {
    QByteArray bytes;
    for (int i = 0; i < 2'000'001; ++i) {
        bytes += static_cast<char>(i * 7 + i / 256);
    }
    peer.answers["update.bin"] = kOk + "Content-Length: 2000001\r\n\r\n" + bytes;
    client->Execute(peer.Url("update.bin"), "GET");
    Finish();
    EXPECT_EQ(client->GetHeader("Content-Length"), "2000001");
    EXPECT_EQ(states, (QList<int>{1, 2, 3, 4, 5, 6, 7, 8, 12}));
    EXPECT_EQ(client->GetChunk(-1), "");
    EXPECT_TRUE(client->GetChunk(1024) == bytes.left(1024));
    EXPECT_TRUE(client->GetChunk(3'000'000) == bytes.mid(1024));
    EXPECT_EQ(client->GetChunk(1024), "");
}

TEST_F(TransferTest, WhatHasComeCanBeTakenWhileMoreIsToCome) {
    peer.waits = true;
    peer.answers["a"] = kOk + "Content-Length: 9\r\n\r\nabc";
    QByteArray all;
    client->Execute(peer.Url("a"), "GET");
    for (const char* next : {"def", "ghi", ""}) {
        QByteArray taken;
        EXPECT_TRUE(QTest::qWaitFor([&] { return (taken += client->GetChunk(9)).size() >= 3; }));
        EXPECT_EQ(client->StillExecuting(), *next != '\0') << taken.constData();
        peer.Say(next);
        all += taken;
    }
    EXPECT_EQ(all, "abcdefghi");
    EXPECT_EQ(states.last(), kStateCompleted);
}

TEST_F(TransferTest, AnUnreachablePeerIsToldByItsNumber) {
    peer.waits = true;
    client->SetRequestTimeout(1);
    const std::pair<QString, int> kCases[] = {
        {"http://127.0.0.1:1/", kErrCannotConnect},
        {"http://" + QString(70, u'a') + ".invalid/", kErrHostNotFound}, // asks no name server
        {peer.Url("mute"), kErrTransferTimeout},
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
    peer.waits = true;
    peer.answers["a"] = kOk + "Content-Length: 3\r\n\r\nold";
    peer.answers["b"] = kOk + "Content-Length: 3\r\n\r\nnew";
    const auto cancel = [this] {
        client->Cancel();
        EXPECT_FALSE(client->StillExecuting());
        client->Execute(peer.Url("b"), "GET");
    };
    for (int at : {1, 2, 3, 4, 5, 6, 7, 8, 12}) {
        for (const std::function<void()>& act :
             {std::function<void()>(cancel), std::function<void()>([this] { client.reset(); })}) {
            Renew();
            atState = [&](int state) {
                if (state == at) {
                    const auto running = std::exchange(atState, nullptr); // still this one
                    act();
                    ServeEvents();
                }
            };
            client->Execute(peer.Url("a"), "GET");
            Finish();
            EXPECT_FALSE(atState) << at;
            EXPECT_TRUE(client == nullptr || client->GetChunk(9) == "new") << at;
        }
    }
}

TEST_F(TransferTest, ASecondRequestIsRefusedAndTheFirstGoesOn) {
    peer.answers["a"] = kOk + "Content-Length: 3\r\n\r\nabc";
    client->Execute(peer.Url("a"), "GET");
    EXPECT_EQ(client->OpenURL(peer.Url("b")), "");
    EXPECT_EQ(states.last(), kStateError);
    Finish();
    EXPECT_EQ(client->GetChunk(9), "abc");
    EXPECT_EQ(states.last(), kStateCompleted);
}

// The second of the examples in RFC 8032, 7.1, changed in one part each.
TEST(Signature, CoversTheWholeFileUnderOneKey) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("file");
    const QByteArray sound =
        QByteArray::fromHex("92a009a9f0d4cab8720e820b5f642540a2b27b5416503f8fb3762223ebdb69da"
                            "085ac1e43e15996e458f3613d0f11d8c387b2eaeb4302aeeb00d291612bb0c00");
    const QString key = "PUAXw+hDiVqStwqnTRt+vJyYLM8uxJaMwM1V8Sr0Zgw=";
    const QByteArray changed = sound.left(5) + char(sound[5] ^ 1) + sound.mid(6);
    const std::tuple<QByteArray, QByteArray, QString, bool> kCases[] = {
        {"r", sound, key, true},
        {"s", sound, key, false},
        {"rr", sound, key, false},
        {"", sound, key, false},
        {"r", changed, key, false},
        {"r", sound + '\n', key, false},
        {"r", "", key, false},
        {"r", sound, "", false},
        {"r", sound, key.chopped(4), false},
        {"r", sound, key.chopped(1) + "!", false},
        {"r", sound, key.chopped(1) + "A", false},
        {"r", sound, "GSx+sKQSTGn+zzk56R8iyBZhOTwoRuf/mFDqf8+Q+1U=", false},
    };
    for (const auto& [content, signature, publicKey, isSigned] : kCases) {
        WriteFile(file, content);
        EXPECT_EQ(IsSigned(file, signature, publicKey), isSigned)
            << (content + signature.toHex()).toStdString() << publicKey.toStdString();
    }
    EXPECT_FALSE(IsSigned(folder.filePath("none"), sound, key));
}
