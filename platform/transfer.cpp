#include "platform/transfer.h"

#include "platform/ansi.h"
#include "platform/curlloop.h"
#include "platform/events.h"

#include <QHash>
#include <QSet>
#include <QTimer>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

int FTPControlPort = 21;

namespace {

// Two connects are at least this far apart, so that a server that resets every one isn't hammered:
// milliseconds.
constexpr int kConnectPace = 50;

constexpr char kPut[] = "PUT ";
constexpr char kCd[] = "CD ";
constexpr char kMkdir[] = "MKDIR ";
constexpr char kClose[] = "CLOSE";

constexpr int kReplyCodeLength = 3;
constexpr char kFirstRefusal = '4'; // replies from 400 on are refusals

// How long a server that has cut a data connection may take to say why: milliseconds.
constexpr int kLastWords = 300;

// Percent-encodes the Windows-1252 bytes of a path; "/" stays.
QByteArray EncodedPath(const QString& path) {
    return ToAnsi(path).toPercentEncoding("/");
}

// A folder as an address holds it, with a "/" at its end; empty for the one that the log-in leads
// to.
QByteArray FolderInUrl(const QString& folder) {
    const QByteArray encoded = EncodedPath(folder);
    return encoded.isEmpty() || encoded.endsWith('/') ? encoded : encoded + "/";
}

// "host" or "[address]" for an address of IP version 6.
QByteArray HostInUrl(const QString& host) {
    return host.contains(u':') && !host.startsWith(u'[') ? "[" + host.toUtf8() + "]"
                                                         : host.toUtf8();
}

int ErrorNumber(CURLcode code) {
    switch (code) {
    case CURLE_OPERATION_TIMEDOUT:
    case CURLE_FTP_ACCEPT_TIMEOUT:
        return kErrTransferTimeout;
    case CURLE_COULDNT_RESOLVE_HOST:
        return kErrHostNotFound;
    case CURLE_COULDNT_CONNECT:
        return kErrCannotConnect;
    case CURLE_LOGIN_DENIED:
        return kErrLogin;
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE:
        return kErrConnectionReset;
    case CURLE_ABORTED_BY_CALLBACK:
        return kErrConnectionAborted;
    default:
        return kErrServerReply;
    }
}

// What a server still says on a control connection that is about to be closed; empty if it says
// nothing.
QByteArray LastWords(curl_socket_t socket) {
    pollfd wait{socket, POLLIN, 0};
    if (poll(&wait, 1, kLastWords) <= 0) {
        return {};
    }
    QByteArray words(1024, '\0');
    const ssize_t got = recv(socket, words.data(), size_t(words.size()), MSG_DONTWAIT);
    return got > 0 ? words.left(got).trimmed() : QByteArray();
}

// The two quoted parts of PUT "local" "remote". A quote inside the remote name belongs to it.
std::pair<QString, QString> PutOperands(const QString& operands) {
    const auto between = operands.indexOf("\" \"");
    if (!operands.startsWith(u'"') || !operands.endsWith(u'"') || between < 0) {
        return {};
    }
    return {operands.mid(1, between - 1), operands.mid(between + 3).chopped(1)};
}

} // namespace

// What belongs to libcurl: the handle, the loop with its connection, and what callbacks fill.
struct TransferClient::Request {
    CURL* easy = curl_easy_init();
    curl_slist* quote = nullptr;
    QFile upload;
    QByteArray reply;   // last complete reply line of an FTP server, or none
    QByteArray refusal; // what a server said when it cut an upload, or none
    QHash<QString, QString> headers;
    QByteArray body;
    qsizetype bodyRead = 0;
    QString newFolder; // of a CD under way
    bool changesFolder = false;
    QSet<int> controlSockets; // open ones
    TransferClient* owner;
    CurlLoop loop; // the last member: while it goes, connections are closed through the callbacks

    explicit Request(TransferClient* client) : owner(client) {}

    // Closing a connection that stands would say good-bye and wait for the answer, however long
    // that takes.
    ~Request() {
        for (const int socket : controlSockets) {
            shutdown(socket, SHUT_RDWR);
        }
        loop.Remove(easy);
        curl_easy_cleanup(easy);
        curl_slist_free_all(quote);
    }

    static size_t OnRead(char* buffer, size_t size, size_t count, void* self) {
        const qint64 got = static_cast<Request*>(self)->upload.read(buffer, qint64(size * count));
        return got < 0 ? CURL_READFUNC_ABORT : static_cast<size_t>(got);
    }

    static size_t OnBody(const char* data, size_t size, size_t count, void* self) {
        static_cast<Request*>(self)->body.append(data, qsizetype(size * count));
        return size * count;
    }

    static size_t OnHeader(const char* data, size_t size, size_t count, void* self) {
        auto* request = static_cast<Request*>(self);
        const QByteArray line = QByteArray(data, qsizetype(size * count)).trimmed();
        const auto colon = line.indexOf(':');
        if (colon > 0) {
            request->headers[FromAnsi(line.left(colon)).toLower()] =
                FromAnsi(line.mid(colon + 1).trimmed());
        }
        // The last line of a reply has a blank behind its three digits.
        if (line.size() > kReplyCodeLength && line[kReplyCodeLength] == ' ') {
            request->reply = line;
        }
        return size * count;
    }

    // libcurl waits for the reply to an upload without returning to the event loop, but comes by
    // here once a second: the window stays alive and can be closed while a server makes us wait.
    static int OnProgress(void* /*self*/, curl_off_t /*toGet*/, curl_off_t /*got*/,
                          curl_off_t /*toSend*/, curl_off_t /*sent*/) {
        DoEvents();
        return 0;
    }

    static curl_socket_t OnOpenSocket(void* self, curlsocktype /*purpose*/,
                                      curl_sockaddr* address) {
        const int opened =
            socket(address->family, address->socktype | SOCK_CLOEXEC, address->protocol);
        const auto* ipv4 = reinterpret_cast<const sockaddr_in*>(&address->addr);
        const auto* ipv6 = reinterpret_cast<const sockaddr_in6*>(&address->addr);
        const auto port = ntohs(address->family == AF_INET6 ? ipv6->sin6_port : ipv4->sin_port);
        if (opened >= 0 && port == FTPControlPort) {
            static_cast<Request*>(self)->controlSockets.insert(opened);
        }
        return opened;
    }

    // A server that runs out of room cuts the data connection and says so on the other one, which
    // libcurl doesn't read any more. Without its words the cut would pass for a reset and be tried
    // again for ever.
    static int OnCloseSocket(void* self, curl_socket_t socket) {
        auto* request = static_cast<Request*>(self);
        if (request->controlSockets.remove(socket) && request->upload.isOpen()) {
            const QByteArray words = LastWords(socket);
            if (!words.isEmpty() && words[0] >= kFirstRefusal) {
                request->refusal = words;
            }
        }
        return close(socket);
    }

    static int OnConnected(void* self, char* /*remoteAddress*/, char* /*localAddress*/,
                           int /*remotePort*/, int /*localPort*/) {
        TransferClient* owner = static_cast<Request*>(self)->owner;
        owner->sessionOpen = true;
        emit owner->StateChanged(kStateConnected);
        emit owner->StateChanged(kStateRequesting);
        return CURL_PREREQFUNC_OK;
    }

    // A fresh set of options; connections stay.
    void Reset(int seconds) {
        curl_easy_reset(easy);
        curl_slist_free_all(quote);
        quote = nullptr;
        upload.close();
        reply.clear();
        refusal.clear();
        headers.clear();
        body.clear();
        bodyRead = 0;
        changesFolder = false;
        curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
        curl_easy_setopt(easy, CURLOPT_NOPROGRESS, 0L);
        curl_easy_setopt(easy, CURLOPT_XFERINFOFUNCTION, OnProgress);
        curl_easy_setopt(easy, CURLOPT_PROXY, "");
        curl_easy_setopt(easy, CURLOPT_CONNECTTIMEOUT, long{seconds});
        curl_easy_setopt(easy, CURLOPT_SERVER_RESPONSE_TIMEOUT, long{seconds});
        curl_easy_setopt(easy, CURLOPT_LOW_SPEED_LIMIT, 1L);
        curl_easy_setopt(easy, CURLOPT_LOW_SPEED_TIME, long{seconds});
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

    void SetUrl(const QByteArray& url) { curl_easy_setopt(easy, CURLOPT_URL, url.constData()); }

    void PrepareFTP(const TransferClient& client, const QByteArray& path) {
        SetUrl("ftp://" + HostInUrl(client.host) + ":" + QByteArray::number(FTPControlPort) + "/" +
               path);
        curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "ftp");
        curl_easy_setopt(easy, CURLOPT_USERNAME, ToAnsi(client.user).constData());
        curl_easy_setopt(easy, CURLOPT_PASSWORD, ToAnsi(client.password).constData());
        curl_easy_setopt(easy, CURLOPT_FTP_FILEMETHOD, long{CURLFTPMETHOD_SINGLECWD});
    }

    // One command of the server's own, without a folder or a file.
    void PrepareQuote(const TransferClient& client, const QByteArray& command,
                      const QByteArray& path) {
        PrepareFTP(client, path);
        quote = curl_slist_append(nullptr, command.constData());
        curl_easy_setopt(easy, CURLOPT_QUOTE, quote);
        curl_easy_setopt(easy, CURLOPT_NOBODY, 1L);
    }
};

TransferClient::TransferClient(QObject* parent)
    : QObject(parent), request(std::make_shared<Request>(this)) {}

TransferClient::~TransferClient() = default;

void TransferClient::SetServer(const QString& newHost, const QString& newUser,
                               const QString& newPassword) {
    if (newHost != host || newUser != user || newPassword != password) {
        DropConnection();
    }
    host = newHost;
    user = newUser;
    password = newPassword;
}

void TransferClient::SetRequestTimeout(int seconds) {
    timeoutSeconds = seconds;
}

void TransferClient::Execute(const QString& command) {
    if (executing && !closing) {
        Fail(kErrServerReply, "Ya hay una orden en curso");
        return;
    }
    if (closing) {
        DropConnection(); // nobody waits for the good-bye
    }
    if (command == kClose && !sessionOpen) {
        Complete();
        return;
    }
    request->Reset(timeoutSeconds);
    StartFTP(command);
}

void TransferClient::StartFTP(const QString& command) {
    if (command.startsWith(kCd)) {
        const QString path = command.mid(qsizetype(qstrlen(kCd)));
        request->newFolder = path.endsWith(u'/') && path.size() > 1 ? path.chopped(1) : path;
        request->changesFolder = true;
        request->PrepareFTP(*this, FolderInUrl(request->newFolder));
        curl_easy_setopt(request->easy, CURLOPT_NOBODY, 1L);
    } else if (command.startsWith(kMkdir)) {
        request->PrepareQuote(*this, "MKD " + ToAnsi(command.mid(qsizetype(qstrlen(kMkdir)))), {});
        curl_easy_setopt(request->easy, CURLOPT_FTP_FILEMETHOD, long{CURLFTPMETHOD_NOCWD});
    } else if (command.startsWith(kPut)) {
        PreparePut(command.mid(qsizetype(qstrlen(kPut))));
        if (!request->upload.isOpen()) {
            Fail(kErrServerReply, "No se puede enviar el archivo " + request->upload.fileName());
            return;
        }
    } else if (command == kClose) {
        // What the server answers doesn't matter: the session is over.
        closing = true;
        request->PrepareQuote(*this, "*QUIT", {});
        curl_easy_setopt(request->easy, CURLOPT_FTP_FILEMETHOD, long{CURLFTPMETHOD_NOCWD});
        curl_easy_setopt(request->easy, CURLOPT_FORBID_REUSE, 1L);
    } else {
        Fail(kErrServerReply, "Orden desconocida: " + command);
        return;
    }
    Start();
}

// Leaves the request's file closed if the command can't be carried out.
void TransferClient::PreparePut(const QString& operands) {
    const auto [local, remote] = PutOperands(operands);
    request->upload.setFileName(local);
    if (remote.isEmpty() || remote.contains(u'/') || !request->upload.open(QIODevice::ReadOnly)) {
        return;
    }
    request->PrepareFTP(*this, FolderInUrl(folder) + ToAnsi(remote).toPercentEncoding());
    curl_easy_setopt(request->easy, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(request->easy, CURLOPT_READFUNCTION, Request::OnRead);
    curl_easy_setopt(request->easy, CURLOPT_READDATA, request.get());
}

void TransferClient::Execute(const QString& url, const QString& method) {
    if (executing) {
        Fail(kErrServerReply, "Ya hay una petición en curso");
        return;
    }
    request->Reset(timeoutSeconds);
    request->SetUrl(url.toUtf8());
    curl_easy_setopt(request->easy, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(request->easy, CURLOPT_CUSTOMREQUEST, method.toLatin1().constData());
    Start();
}

QString TransferClient::OpenURL(const QString& url) {
    Execute(url, "GET");
    while (StillExecuting()) {
        WaitForEvents();
    }
    return responseCode == 0 ? FromAnsi(request->body) : QString();
}

// Starts the prepared request, paced so that a server that fails at once isn't asked more than
// twenty times a second.
void TransferClient::Start() {
    executing = true;
    responseCode = 0;
    responseInfo.clear();
    emit StateChanged(kStateResolving);
    const auto start = [this] {
        request->loop.Start(request->easy, [this](CURLcode code) { Finish(code); });
    };
    if (sessionOpen || !lastConnect.isValid() || lastConnect.hasExpired(kConnectPace)) {
        lastConnect.start();
        start();
    } else {
        lastConnect.start();
        QTimer::singleShot(kConnectPace, &request->loop, start);
    }
}

bool TransferClient::StillExecuting() const {
    return executing;
}

void TransferClient::Cancel() {
    if (executing) {
        DropConnection();
        responseCode = kErrConnectionAborted;
        responseInfo.clear();
    }
}

QString TransferClient::GetHeader(const QString& name) const {
    return request->headers.value(name.toLower());
}

QByteArray TransferClient::GetChunk(int size) {
    const QByteArray chunk = request->body.mid(request->bodyRead, size);
    request->bodyRead += chunk.size();
    return chunk;
}

void TransferClient::Finish(int curlCode) {
    executing = false;
    request->upload.close();
    if (closing) {
        DropConnection();
        Complete();
        return;
    }
    if (curlCode == CURLE_OK) {
        if (request->changesFolder) {
            folder = request->newFolder;
        }
        Complete();
        return;
    }
    if (!request->refusal.isEmpty()) {
        Fail(kErrServerReply, FromAnsi(request->refusal));
        return;
    }
    const auto code = static_cast<CURLcode>(curlCode);
    const int number = ErrorNumber(code);
    sessionOpen = !request->controlSockets.isEmpty();
    const bool serverSpoke = number == kErrServerReply || number == kErrLogin;
    Fail(number, serverSpoke && !request->reply.isEmpty()
                     ? FromAnsi(request->reply)
                     : QString::fromUtf8(curl_easy_strerror(code)));
}

void TransferClient::Fail(int code, const QString& info) {
    responseCode = code;
    responseInfo = info;
    emit StateChanged(kStateError);
}

void TransferClient::Complete() {
    responseCode = 0;
    responseInfo.clear();
    emit StateChanged(kStateReceived);
    emit StateChanged(kStateCompleted);
}

void TransferClient::DropConnection() {
    executing = false;
    closing = false;
    sessionOpen = false;
    folder.clear();
    // This may run inside a callback of the old loop, so that one goes with the next turn of the
    // event loop.
    request->loop.Remove(request->easy);
    QTimer::singleShot(0, qApp, [old = std::move(request)] {});
    request = std::make_shared<Request>(this);
}
