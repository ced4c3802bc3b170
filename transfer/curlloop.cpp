// For curl_multi_socket_all, which is out of favour with programs of many transfers.
#define CURL_DISABLE_DEPRECATION
#include "transfer/curlloop.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <mutex>

namespace {

constexpr int kAgainMilliseconds = 10;
constexpr int kPulseMilliseconds = 5;
constexpr int kHeldUpMilliseconds = 250;

void InitialiseOnce() {
    static std::once_flag flag;
    std::call_once(flag, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

// The notifier that called may be the one that goes, so it is left to the event loop to free.
void Drop(std::unique_ptr<QSocketNotifier>& notifier) {
    if (notifier) {
        notifier->setEnabled(false);
        notifier.release()->deleteLater();
    }
}

} // namespace

CurlLoop::CurlLoop(QObject* parent)
    : QObject(parent), timer(new QTimer(this)), answerTimer(new QTimer(this)) {
    InitialiseOnce();
    multi = curl_multi_init();
    curl_multi_setopt(multi, CURLMOPT_SOCKETFUNCTION, OnSocket);
    curl_multi_setopt(multi, CURLMOPT_SOCKETDATA, this);
    curl_multi_setopt(multi, CURLMOPT_TIMERFUNCTION, OnTimer);
    curl_multi_setopt(multi, CURLMOPT_TIMERDATA, this);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, [this] { Act(); });
}

CurlLoop::~CurlLoop() {
    for (const auto& [easy, finished] : running) {
        curl_multi_remove_handle(multi, easy);
    }
    curl_multi_cleanup(multi);
}

bool CurlLoop::HoldsUp() const {
    return busy.isValid() && busy.hasExpired(kHeldUpMilliseconds);
}

void CurlLoop::Start(CURL* easy, std::function<void(CURLcode)> finished) {
    running[easy] = std::move(finished);
    curl_multi_add_handle(multi, easy);
}

void CurlLoop::Remove(CURL* easy) {
    Drop(answer);
    answerTimer->stop();
    if (running.erase(easy) > 0) {
        curl_multi_remove_handle(multi, easy);
    }
}

void CurlLoop::AwaitConnection(curl_socket_t socket) {
    awaited = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Write);
    connect(awaited.get(), &QSocketNotifier::activated, this, [this, socket] {
        EndAwaiting(socket);
        Act();
    });
}

void CurlLoop::EndAwaiting(curl_socket_t socket) {
    if (awaited && awaited->socket() == socket) {
        Drop(awaited);
    }
}

void CurlLoop::ResumeOnAnswer(CURL* easy, curl_socket_t socket, int milliseconds,
                              std::function<bool()> givesUp) {
    answer = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Read);
    connect(answer.get(), &QSocketNotifier::activated, this, [this, easy] { Resume(easy); });
    answerTimer->disconnect(this);
    answerTimer->callOnTimeout(this, [this, easy, givesUp = std::move(givesUp)] {
        if (givesUp()) {
            Resume(easy);
        }
    });
    answerTimer->start(milliseconds);
}

void CurlLoop::Resume(CURL* easy) {
    if (busy.isValid()) { // libcurl is on the stack and serves events: the notifier calls again
        return;
    }
    Drop(answer);
    answerTimer->stop();
    curl_easy_pause(easy, CURLPAUSE_CONT);
}

int CurlLoop::OnSocket(CURL* /*easy*/, curl_socket_t socket, int what, void* self,
                       void* /*socketData*/) {
    static_cast<CurlLoop*>(self)->WatchSocket(socket, what);
    return 0;
}

int CurlLoop::OnTimer(CURLM* /*multi*/, long milliseconds, void* self) {
    QTimer* timer = static_cast<CurlLoop*>(self)->timer;
    if (milliseconds < 0) {
        timer->stop();
    } else {
        timer->start(static_cast<int>(milliseconds));
    }
    return 0;
}

void CurlLoop::WatchSocket(curl_socket_t socket, int what) {
    EndAwaiting(socket);
    Watch& watch = watches[socket];
    const bool reads = what == CURL_POLL_IN || what == CURL_POLL_INOUT;
    const bool writes = what == CURL_POLL_OUT || what == CURL_POLL_INOUT;
    if (!reads) {
        Drop(watch.read);
    } else if (!watch.read) {
        watch.read = MakeNotifier(socket, false);
    }
    if (!writes) {
        Drop(watch.write);
    } else if (!watch.write) {
        watch.write = MakeNotifier(socket, true);
    }
    if (what == CURL_POLL_REMOVE) {
        watches.erase(socket);
    }
}

std::unique_ptr<QSocketNotifier> CurlLoop::MakeNotifier(curl_socket_t socket, bool forWriting) {
    auto notifier = std::make_unique<QSocketNotifier>(socket, forWriting ? QSocketNotifier::Write
                                                                         : QSocketNotifier::Read);
    connect(notifier.get(), &QSocketNotifier::activated, this, [this] { Act(); });
    return notifier;
}

void CurlLoop::Act() {
    const std::shared_ptr<void> alive = holder.lock();
    Perform();
    if (alive.use_count() == 1) { // given up; the caller is a part of it, so it goes later
        QTimer::singleShot(0, qApp, [alive] {});
    }
}

void CurlLoop::Perform() {
    int left = 0;
    if (busy.isValid()) { // events served inside a callback: what was due comes again
        timer->start(kAgainMilliseconds);
        return;
    }
    busy.start();
    // There is one transfer, and libcurl doesn't announce every socket that it waits for: it looks
    // at all of them, and once more where it acts on a reply in the next call only.
    do {
        lookAgain = false;
        curl_multi_socket_all(multi, &left);
    } while (lookAgain);
    busy.invalidate();
    CollectFinished();
    // Whatever else libcurl leaves to the next call without a socket or a timer that announces it;
    // nothing while the transfer is paused.
    if (!running.empty() && !answer &&
        (!timer->isActive() || timer->remainingTime() > kPulseMilliseconds)) {
        timer->start(kPulseMilliseconds);
    }
}

void CurlLoop::CollectFinished() {
    int queued = 0;
    while (const CURLMsg* message = curl_multi_info_read(multi, &queued)) {
        if (message->msg != CURLMSG_DONE) {
            continue;
        }
        CURL* easy = message->easy_handle;
        const CURLcode result = message->data.result;
        const auto entry = running.find(easy);
        if (entry == running.end()) {
            continue;
        }
        const auto finished = std::move(entry->second);
        Remove(easy);
        finished(result);
    }
}
