// Transfers of libcurl inside the event loop: one multi handle with its connection cache, driven by
// socket notifiers and a timer, so that a transfer costs no waiting and no thread.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <curl/curl.h>
#include <functional>
#include <memory>
#include <unordered_map>

class QSocketNotifier;
class QTimer;

class CurlLoop : public QObject {
    Q_OBJECT

public:
    explicit CurlLoop(QObject* parent = nullptr);
    ~CurlLoop() override;

    // What the loop is part of. While libcurl is on the stack, also because a callback serves
    // events, the loop keeps the holder alive: whoever gives it up there need not care.
    void SetHolder(std::weak_ptr<void> newHolder) { holder = std::move(newHolder); }

    // Whether libcurl has been on the stack for longer than a user should notice.
    bool HoldsUp() const;

    // Starts a prepared handle; `finished` is called once from the event loop when it has ended by
    // itself. The handle stays the caller's, who removes it before freeing it.
    void Start(CURL* easy, std::function<void(CURLcode)> finished);

    // Takes a handle out, running or not; a transfer under way is abandoned with its connection.
    // From inside a callback the handle only goes silent: libcurl has it until it is freed.
    void Remove(CURL* easy);

    // From inside libcurl, when something happened that it acts on in the next call only, such as
    // the port of a data connection having come.
    void LookAgain() { lookAgain = true; }

    // For a data connection that is being made, which libcurl doesn't announce: it goes on as soon
    // as the connection is there. One at a time; EndAwaiting has to run before the socket is
    // closed.
    void AwaitConnection(curl_socket_t socket);
    void EndAwaiting(curl_socket_t socket);

    // For a handle that has paused itself: it goes on when the socket has something to read or is
    // closed by the peer, or when `milliseconds` have passed and `givesUp` says so; otherwise they
    // begin again. One at a time; Remove ends it.
    void ResumeOnAnswer(CURL* easy, curl_socket_t socket, int milliseconds,
                        std::function<bool()> givesUp);

private:
    struct Watch {
        std::unique_ptr<QSocketNotifier> read;
        std::unique_ptr<QSocketNotifier> write;
    };

    static int OnSocket(CURL* easy, curl_socket_t socket, int what, void* self, void* socketData);
    static int OnTimer(CURLM* multi, long milliseconds, void* self);

    void Resume(CURL* easy);
    void WatchSocket(curl_socket_t socket, int what);
    std::unique_ptr<QSocketNotifier> MakeNotifier(curl_socket_t socket, bool forWriting);
    void Act();
    void Perform();
    void CollectFinished();

    CURLM* multi;
    QTimer* timer;
    std::weak_ptr<void> holder;
    QElapsedTimer busy; // since libcurl was called; invalid while it isn't
    std::unordered_map<curl_socket_t, Watch> watches;
    std::unique_ptr<QSocketNotifier> awaited; // of AwaitConnection
    std::unique_ptr<QSocketNotifier> answer;  // of ResumeOnAnswer
    QTimer* answerTimer;
    bool lookAgain = false;
    std::unordered_map<CURL*, std::function<void(CURLcode)>> running;
};
