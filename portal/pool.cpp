#include "portal/pool.h"

#include "core/settings.h"
#include "forms/mainform.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "portal/request.h"
#include "site/abort.h"
#include "site/steps.h"
#include "text/ansi.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QPointer>
#include <algorithm>

std::vector<PortalJob> PortalJobs(1);
std::array<PortalSocket, kPortalSockets> PortalSockets;
QString PortalHost;
bool PortalLoggedIn = false;
bool PortalHostNotFound = false;
bool PortalSendDone = false;
int PortalDoneCount = 0;
int PortalPort = 80;
int PortalPatience = 600'000;

namespace {

// Of the requests that wait in memory: bytes. Making them is quicker than any line.
constexpr qsizetype kMostWaiting = qsizetype{32} << 20;

// No log-in page is larger: a peer that never stops must not fill the memory. Bytes.
constexpr qsizetype kLargestPage = qsizetype{256} << 20;

// Of the other answers nobody reads more than that there is one: bytes.
constexpr qsizetype kKeptOfAnswer = 1024;

std::array<QPointer<TcpSocket>, kPortalSockets> sockets;

bool running = false;       // from the beginning of a session to its end
qsizetype unfinished = 0;   // bytes of the requests that are
QElapsedTimer lastProgress; // since the portal has done something
QString shownCounts;        // as the user reads them,
QElapsedTimer lastShown;    // and since when

bool IsQueued(const PortalJob& job) {
    return job.State == kJobWaiting && !job.Request.isEmpty();
}

bool AnyJob(bool (*is)(const PortalJob&)) {
    return std::any_of(PortalJobs.begin(), PortalJobs.end(), is);
}

// No more often than an eye can see: each change of a text lays the form out anew.
void ShowCounts() {
    if (!running || !PortalLoggedIn || AbortPublish) {
        return;
    }
    const QString text =
        QString("Enviando a %1: %2 de %3").arg(VSname).arg(PortalDoneCount).arg(PortalJobs.size());
    const bool readable = !lastShown.isValid() || lastShown.hasExpired(kServeInterval);
    if (readable && text != shownCounts) {
        ReportActivity(text);
        shownCounts = text;
        lastShown.start();
    }
}

void ShowProgress() {
    if (running) {
        SetProgress(PortalDoneCount, static_cast<int>(PortalJobs.size()), 0, kBarTask);
        ShowCounts();
    }
}

// The next waiting row for a connection that stands, if there is one. While logging in, the table's
// one empty row stands for the log-in.
void TakeJob(int index, bool wasIdle) {
    PortalSocket& socket = PortalSockets.at(index);
    int chosen = kNoJob;
    PortalDoneCount = 0;
    for (int row = 0; row < static_cast<int>(PortalJobs.size()); ++row) {
        const PortalJob& job = PortalJobs[row];
        PortalDoneCount += job.State == kJobFinished ? 1 : 0;
        const bool free = job.State == kJobWaiting && (!PortalLoggedIn || IsQueued(job));
        chosen = chosen == kNoJob && free ? row : chosen;
    }
    if (chosen != kNoJob) {
        socket.Received.clear();
        socket.JobIndex = chosen;
        socket.WasIdle = wasIdle;
        PortalJobs[chosen].State = kJobOnSocket;
        wskPortal(index).SendData(PortalJobs[chosen].Request);
    }
    ShowProgress();
}

void FinishJob(PortalJob& job) {
    lastProgress.start();
    unfinished -= job.Request.size();
    job.State = kJobFinished;
    job.Request = {};
    ++PortalDoneCount;
    ShowProgress();
}

// The portal has closed a connection that stood idle while a request set out on it, which it has
// not read.
bool HasCrossed(const PortalSocket& socket) {
    return socket.WasIdle && socket.Received.isEmpty();
}

// After the run a connection is made for a job alone.
bool IsWanted() {
    return PortalLoggedIn && (running || AnyJob(IsQueued));
}

void OnPortalConnect(int index) {
    TakeJob(index, false);
}

void OnPortalDataArrival(int index) {
    if (wskPortal(index).State() != kSocketConnected) {
        return;
    }
    const QByteArray data = wskPortal(index).GetData();
    QByteArray& received = PortalSockets.at(index).Received;
    const qsizetype room = (PortalLoggedIn ? kKeptOfAnswer : kLargestPage) - received.size();
    if (room > 0) {
        lastProgress.start();
        received += data.left(room);
    }
}

void OnPortalClose(int index) {
    PortalSocket& socket = PortalSockets.at(index);
    const int row = std::exchange(socket.JobIndex, kNoJob);
    if (row != kNoJob && HasCrossed(socket)) {
        PortalJobs[row].State = kJobWaiting;
    } else if (row != kNoJob) {
        FinishJob(PortalJobs[row]);
    }
    wskPortal(index).Close();
    if (IsWanted()) {
        PortalConnect(index);
    }
}

// A host without an address can't be had by trying again; everything else is tried without end.
void OnPortalError(int index, int number) {
    if (number == kErrSocketHostNotFound) {
        PortalHostNotFound = true;
        return;
    }
    PortalSocket& socket = PortalSockets.at(index);
    ++socket.Broken;
    const int row = std::exchange(socket.JobIndex, kNoJob);
    if (row != kNoJob) {
        PortalJobs[row].State = kJobWaiting;
    }
    wskPortal(index).Close();
    if (running || IsWanted()) {
        PortalConnect(index);
    }
}

TcpSocket* MakeSocket(int index) {
    auto* socket = new TcpSocket(frmMain);
    QObject::connect(socket, &TcpSocket::Connected, socket, [index] { OnPortalConnect(index); });
    QObject::connect(socket, &TcpSocket::DataArrived, socket,
                     [index] { OnPortalDataArrival(index); });
    QObject::connect(socket, &TcpSocket::PeerClosed, socket, [index] { OnPortalClose(index); });
    QObject::connect(socket, &TcpSocket::Failed, socket,
                     [index](int number) { OnPortalError(index, number); });
    QObject::connect(socket, &TcpSocket::SendCompleted, socket, [] { PortalSendDone = true; });
    return socket;
}

// A connection that stands and has nothing to do takes the next job at once.
void UseIdleSocket() {
    for (int index = 0; index < kPortalSockets; ++index) {
        if (wskPortal(index).State() == kSocketConnected &&
            PortalSockets.at(index).JobIndex == kNoJob) {
            TakeJob(index, true);
            return;
        }
    }
}

void ConnectOneMore() {
    for (int index = 0; index < kPortalSockets; ++index) {
        if (wskPortal(index).State() == kSocketClosed) {
            PortalConnect(index);
            return;
        }
    }
}

} // namespace

void ResetPortal(const QString& host) {
    PortalHost = FromAnsi(OneLine(ToAnsi(host)));
    PortalHostNotFound = false;
    PortalLoggedIn = false;
    PortalSockets.fill({});
    ResetPortalJobs();
    running = true;
    lastProgress.start();
    lastShown.invalidate();
    shownCounts.clear();
}

void SetPortalLoggedIn() {
    PortalLoggedIn = true;
}

void ResetPortalJobs() {
    PortalJobs.assign(1, {});
    unfinished = 0;
}

void PortalQueueRequest(const QString& name, const QByteArray& request, bool isPicture) {
    if (PortalLoggedIn) {
        ConnectOneMore();
    }
    ServeEvents();
    WaitForPortal([] { return unfinished < kMostWaiting; });
    if (PortalGivenUp()) { // an album that was broken off must not stand for the whole one
        return;
    }
    const PortalJob& last = PortalJobs.back();
    if (last.State != kJobWaiting || !last.Request.isEmpty()) {
        PortalJobs.emplace_back();
    }
    PortalJobs.back() = {isPicture, name, request, kJobWaiting};
    unfinished += request.size();
    UseIdleSocket();
}

bool PortalGivenUp() {
    return AbortPublish || (IsUnattended() && lastProgress.hasExpired(PortalPatience));
}

bool WaitForPortal(const std::function<bool()>& done) {
    while (!done() && !PortalGivenUp()) {
        WaitForEvents();
        ShowCounts();
    }
    return done();
}

void PortalConnect(int index) {
    TcpSocket& socket = wskPortal(index);
    try {
        socket.Connect(PortalHost, PortalPort);
    } catch (const std::exception&) { // the next request that is queued tries again
        socket.SetLocalPort(0);
        socket.Close();
    }
}

void SendOnPortal(const QByteArray& request) {
    PortalSendDone = false;
    wskPortal(0).SendData(request);
}

void DropPortalJobs() {
    for (PortalSocket& socket : PortalSockets) {
        socket.JobIndex = kNoJob;
    }
    ResetPortalJobs();
}

void ClosePortalSockets() {
    running = false;
    for (int index = 1; index < kPortalSockets; ++index) {
        if (sockets.at(index)) {
            sockets.at(index)->Close();
            sockets.at(index)->deleteLater();
            sockets.at(index).clear();
        }
    }
}

bool PortalGoesOut() {
    return !running && !PortalHostNotFound &&
           AnyJob([](const PortalJob& job) { return !job.Request.isEmpty(); });
}

void FinishPortal(int milliseconds) {
    const QDeadlineTimer deadline(milliseconds);
    while (PortalGoesOut() && !deadline.hasExpired()) {
        WaitForEvents();
    }
}

TcpSocket& wskPortal(int index) {
    QPointer<TcpSocket>& socket = sockets.at(index);
    if (!socket) {
        socket = MakeSocket(index);
    }
    return *socket;
}
