#include "transfer/transferrequest.h"

#include "platform/events.h"
#include "transfer/transferstates.h"

#include <algorithm>
#include <linux/sockios.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

// How long a server that has cut a data connection may take to say why: milliseconds.
constexpr int kLastWords = 300;

// What waits in this machine for a slow line to take it counts as sent in the progress: bytes.
constexpr int kSendBuffer = 256 * 1024;

// Nobody lets more of a body lie: a peer that never stops must not fill the memory. Bytes.
constexpr qsizetype kLargestBody = qsizetype{1} << 30;

constexpr long kMostRedirects = 10;

// What a server still says on a control connection that is about to be closed; empty if it says
// nothing.
QByteArray LastWords(curl_socket_t socket) {
    pollfd wait{socket, POLLIN, 0};
    if (poll(&wait, 1, kLastWords) <= 0) {
        return {};
    }
    QByteArray words(1024, '\0');
    const ssize_t got = recv(socket, words.data(), size_t(words.size()), MSG_DONTWAIT);
    return words.left(std::max<ssize_t>(got, 0));
}

// Bytes that the peer hasn't got yet.
int Unsent(curl_socket_t socket) {
    int bytes = 0;
    return ioctl(socket, SIOCOUTQ, &bytes) == 0 ? bytes : 0;
}

int PortOf(const curl_sockaddr& address) {
    const auto* ipv4 = reinterpret_cast<const sockaddr_in*>(&address.addr);
    const auto* ipv6 = reinterpret_cast<const sockaddr_in6*>(&address.addr);
    return ntohs(address.family == AF_INET6 ? ipv6->sin6_port : ipv4->sin_port);
}

} // namespace

TransferRequest::TransferRequest(std::function<void(int)> newReport)
    : easy(curl_easy_init()), report(std::move(newReport)) {}

std::shared_ptr<TransferRequest> TransferRequest::Make(std::function<void(int)> report) {
    std::shared_ptr<TransferRequest> request(new TransferRequest(std::move(report)));
    request->loop.SetHolder(request);
    return request;
}

// Closing a connection that stands would say good-bye and wait for the answer, however long that
// takes.
TransferRequest::~TransferRequest() {
    report = nullptr;
    for (const int socket : controlSockets) {
        shutdown(socket, SHUT_RDWR);
    }
    loop.Remove(easy);
    curl_easy_cleanup(easy);
    curl_slist_free_all(quote);
}

void TransferRequest::Reset(int seconds) {
    curl_easy_reset(easy);
    curl_slist_free_all(quote);
    quote = nullptr;
    upload.close();
    words.Clear();
    cutReason.clear();
    body.clear();
    asked = false;
    answered = false;
    allSent = false;
    unanswered = false;
    timeoutSeconds = seconds;
    curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(easy, CURLOPT_PROXY, "");
    SetTimeouts(seconds);
    SetCallbacks();
}

void TransferRequest::SetTimeouts(int seconds) {
    curl_easy_setopt(easy, CURLOPT_CONNECTTIMEOUT, long{seconds});
    curl_easy_setopt(easy, CURLOPT_SERVER_RESPONSE_TIMEOUT, long{seconds});
    curl_easy_setopt(easy, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(easy, CURLOPT_LOW_SPEED_TIME, long{seconds});
    // Whoever gives up doesn't wait for a name server that doesn't answer.
    curl_easy_setopt(easy, CURLOPT_QUICK_EXIT, 1L);
}

void TransferRequest::SetCallbacks() {
    curl_easy_setopt(easy, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(easy, CURLOPT_XFERINFOFUNCTION, OnProgress);
    curl_easy_setopt(easy, CURLOPT_XFERINFODATA, this);
    curl_easy_setopt(easy, CURLOPT_OPENSOCKETFUNCTION, OnOpenSocket);
    curl_easy_setopt(easy, CURLOPT_OPENSOCKETDATA, this);
    curl_easy_setopt(easy, CURLOPT_CLOSESOCKETFUNCTION, OnCloseSocket);
    curl_easy_setopt(easy, CURLOPT_CLOSESOCKETDATA, this);
    curl_easy_setopt(easy, CURLOPT_HEADERFUNCTION, OnHeader);
    curl_easy_setopt(easy, CURLOPT_HEADERDATA, this);
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, OnBody);
    curl_easy_setopt(easy, CURLOPT_WRITEDATA, this);
    curl_easy_setopt(easy, CURLOPT_PREREQFUNCTION, OnConnected);
    curl_easy_setopt(easy, CURLOPT_PREREQDATA, this);
}

void TransferRequest::PrepareHttp(const QByteArray& url, const QByteArray& method) {
    curl_easy_setopt(easy, CURLOPT_URL, url.constData());
    curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(easy, CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(easy, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(easy, CURLOPT_MAXREDIRS, kMostRedirects);
    curl_easy_setopt(easy, CURLOPT_CUSTOMREQUEST, method.constData());
}

// The path goes as it is: ".." in it is for the server to resolve.
void TransferRequest::PrepareFtp(const FtpAccount& account, const QByteArray& path) {
    const QByteArray url =
        "ftp://" + account.host + ":" + QByteArray::number(account.port) + "/" + path;
    controlPort = account.port;
    curl_easy_setopt(easy, CURLOPT_URL, url.constData());
    curl_easy_setopt(easy, CURLOPT_PATH_AS_IS, 1L);
    curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "ftp");
    curl_easy_setopt(easy, CURLOPT_USERNAME, account.user.constData());
    curl_easy_setopt(easy, CURLOPT_PASSWORD, account.password.constData());
    curl_easy_setopt(easy, CURLOPT_FTP_FILEMETHOD, long{CURLFTPMETHOD_SINGLECWD});
}

void TransferRequest::PrepareFolder(const FtpAccount& account, const QByteArray& folder) {
    PrepareFtp(account, folder);
    curl_easy_setopt(easy, CURLOPT_NOBODY, 1L);
}

void TransferRequest::PrepareCommand(const FtpAccount& account, const QByteArray& command) {
    PrepareFtp(account, {});
    quote = curl_slist_append(nullptr, command.constData());
    curl_easy_setopt(easy, CURLOPT_QUOTE, quote);
    curl_easy_setopt(easy, CURLOPT_NOBODY, 1L);
    curl_easy_setopt(easy, CURLOPT_FTP_FILEMETHOD, long{CURLFTPMETHOD_NOCWD});
}

bool TransferRequest::PrepareUpload(const FtpAccount& account, const QByteArray& path,
                                    const QString& file) {
    upload.setFileName(file);
    if (!upload.open(QIODevice::ReadOnly)) {
        return false;
    }
    PrepareFtp(account, path);
    curl_easy_setopt(easy, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(easy, CURLOPT_READFUNCTION, OnRead);
    curl_easy_setopt(easy, CURLOPT_READDATA, this);
    return true;
}

void TransferRequest::Start(std::function<void(CURLcode)> finished) {
    loop.Start(easy, [this, finished = std::move(finished)](CURLcode code) {
        upload.close();
        finished(unanswered ? CURLE_OPERATION_TIMEDOUT : code);
    });
}

void TransferRequest::Abandon() {
    report = nullptr;
    loop.Remove(easy);
}

bool TransferRequest::Connected() const {
    // Between two commands a server says something only when it ends the session.
    return std::any_of(controlSockets.begin(), controlSockets.end(), [](int socket) {
        pollfd look{socket, POLLIN, 0};
        return poll(&look, 1, 0) == 0;
    });
}

void TransferRequest::Report(int state) const {
    if (report) {
        const auto copy = report; // the slot may abandon this request
        copy(state);
    }
}

// Ends the data stream, as closing its connection would, and looks for the reply. On a slow line
// much of the file still waits in this machine: time runs out only where none of it moves.
void TransferRequest::AwaitReply() {
    allSent = true;
    shutdown(dataSocket, SHUT_WR);
    loop.ResumeOnAnswer(easy, *controlSockets.begin(), timeoutSeconds * 1000,
                        [this, before = Unsent(dataSocket)]() mutable {
                            const int now = Unsent(dataSocket);
                            unanswered = now == std::exchange(before, now);
                            return unanswered;
                        });
}

// libcurl asks for more when it has sent what it got before.
size_t TransferRequest::OnRead(char* buffer, size_t size, size_t count, void* self) {
    auto* request = static_cast<TransferRequest*>(self);
    const size_t room = size * count;
    const qint64 got = request->upload.read(buffer, qint64(room));
    if (got < 0 || request->unanswered) {
        return CURL_READFUNC_ABORT;
    }
    const bool awaitable =
        request->dataSocket != CURL_SOCKET_BAD && request->controlSockets.size() == 1;
    if (got == 0 && !request->allSent && awaitable) {
        request->AwaitReply();
        return CURL_READFUNC_PAUSE;
    }
    return static_cast<size_t>(got);
}

size_t TransferRequest::OnBody(const char* data, size_t size, size_t count, void* self) {
    QByteArray& body = static_cast<TransferRequest*>(self)->body;
    const size_t bytes = size * count;
    if (body.size() + qsizetype(bytes) > kLargestBody) {
        return 0;
    }
    body.append(data, qsizetype(bytes));
    return bytes;
}

size_t TransferRequest::OnHeader(const char* data, size_t size, size_t count, void* self) {
    auto* request = static_cast<TransferRequest*>(self);
    const size_t bytes = size * count;
    request->words.AddLine(QByteArray(data, qsizetype(bytes)));
    request->loop.LookAgain();
    if (request->asked && !request->answered) {
        request->answered = true;
        request->Report(kStateRequestSent);
        request->Report(kStateReceiving);
    }
    return bytes;
}

// Where libcurl waits without returning to the event loop it comes by here once a second: the
// window stays alive and can be closed.
int TransferRequest::OnProgress(void* self, curl_off_t /*toGet*/, curl_off_t /*got*/,
                                curl_off_t /*toSend*/, curl_off_t /*sent*/) {
    auto* request = static_cast<TransferRequest*>(self);
    if (request->report && request->loop.HoldsUp()) {
        DoEvents();
    }
    return request->report ? 0 : 1;
}

curl_socket_t TransferRequest::OnOpenSocket(void* self, curlsocktype /*purpose*/,
                                            curl_sockaddr* address) {
    auto* request = static_cast<TransferRequest*>(self);
    const int opened = socket(address->family, address->socktype | SOCK_CLOEXEC, address->protocol);
    if (opened >= 0 && PortOf(*address) == request->controlPort) {
        request->controlSockets.insert(opened);
    } else if (opened >= 0) {
        setsockopt(opened, SOL_SOCKET, SO_SNDBUF, &kSendBuffer, sizeof kSendBuffer);
        request->dataSocket = opened;
        request->loop.AwaitConnection(opened);
    }
    if (!request->asked) {
        request->Report(kStateResolved);
        request->Report(kStateConnecting);
    }
    return opened;
}

// A server that runs out of room cuts the data connection and says so on the other one, which
// libcurl doesn't read any more. Without its words the cut would pass for a reset and be tried
// again for ever.
int TransferRequest::OnCloseSocket(void* self, curl_socket_t socket) {
    auto* request = static_cast<TransferRequest*>(self);
    request->loop.EndAwaiting(socket);
    if (request->dataSocket == socket) {
        request->dataSocket = CURL_SOCKET_BAD;
    }
    if (request->controlSockets.remove(socket) && request->upload.isOpen() && request->report) {
        request->cutReason = LastRefusal(LastWords(socket));
    }
    return close(socket);
}

int TransferRequest::OnConnected(void* self, char* /*remoteAddress*/, char* /*localAddress*/,
                                 int /*remotePort*/, int /*localPort*/) {
    auto* request = static_cast<TransferRequest*>(self);
    request->asked = true;
    request->Report(kStateConnected);
    request->Report(kStateRequesting);
    return request->report ? CURL_PREREQFUNC_OK : CURL_PREREQFUNC_ABORT;
}
