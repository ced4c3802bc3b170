#include "transfer/transfer.h"

#include "platform/events.h"
#include "text/ansi.h"
#include "transfer/ftpaddress.h"
#include "transfer/transferrequest.h"

#include <QPointer>
#include <QTimer>
#include <stdexcept>

int FTPControlPort = 21;

namespace {

// Two connects are at least this far apart, so that a server that resets every one isn't hammered:
// milliseconds.
constexpr int kConnectPace = 50;

// A server that ends the session says so with this reply, to whatever it was asked; libcurl takes
// that for a time-out.
constexpr char kServiceEnds[] = "421";

// The server took all bytes of a file and then said that it couldn't keep them, as when a disk is
// full; libcurl takes a cut body of an HTTP response for the same.
constexpr int kUploadNotConfirmed = CURLE_PARTIAL_FILE;

// "/web/" and "/web" are one folder; "/" stays.
QString WithoutSeparatorBehind(QString path) {
    while (path.endsWith(u'/') && path.size() > 1) {
        path.chop(1);
    }
    return path;
}

} // namespace

TransferClient::TransferClient(QObject* parent)
    : QObject(parent), account(std::make_unique<FtpAccount>()) {
    Renew();
}

TransferClient::~TransferClient() {
    request->Abandon();
}

void TransferClient::SetServer(const QString& host, const QString& user, const QString& password) {
    const FtpAccount wanted{HostInAddress(host), FTPControlPort, ToAnsi(user), ToAnsi(password)};
    if (wanted.host.isEmpty() || !FitsOneLine(user) || !FitsOneLine(password)) {
        throw std::invalid_argument("no host, user or password for a transfer");
    }
    if (wanted != *account) {
        Renew();
    }
    *account = wanted;
}

void TransferClient::SetRequestTimeout(int seconds) {
    timeoutSeconds = seconds;
}

void TransferClient::OpenFolder(const QString& path) {
    if (ReadyFor(Command::OpenFolder, path)) {
        newFolder = WithoutSeparatorBehind(path);
        request->PrepareFolder(*account, FolderInAddress(newFolder));
        Start();
    }
}

void TransferClient::MakeFolder(const QString& path) {
    if (ReadyFor(Command::Other, path)) {
        request->PrepareCommand(*account, "MKD " + ToAnsi(WithoutSeparatorBehind(path)));
        Start();
    }
}

void TransferClient::SendFile(const QString& localPath, const QString& remoteName) {
    if (!ReadyFor(Command::Other, localPath + remoteName)) {
        return;
    }
    if (remoteName.isEmpty() || remoteName.contains(u'/') ||
        !request->PrepareUpload(*account, FolderInAddress(folder) + NameInAddress(remoteName),
                                localPath)) {
        Fail(kErrServerReply, "No se puede enviar el archivo");
        return;
    }
    Start();
}

void TransferClient::CloseSession() {
    if (ReadyFor(Command::Close, {})) {
        request->PrepareCommand(*account, "*QUIT"); // what is answered doesn't matter
        Start();
    }
}

// Whether an FTP command may be prepared now; if not, its end has been reported. `texts` is what
// it would put on the wire.
bool TransferClient::ReadyFor(Command command, const QString& texts) {
    const bool closing = executing && running == Command::Close;
    if (executing && !closing) {
        Fail(kErrServerReply, "Ya hay una orden en curso");
        return false;
    }
    // Nobody waits for the good-bye. Where the server has ended the session, its last words must
    // not pass for the answer to this command.
    if (closing || !request->Connected()) {
        const QString lastFolder = closing || command == Command::Close ? QString() : folder;
        Renew();
        folder = lastFolder;
    }
    if (command == Command::Close && !request->Connected()) {
        Complete();
        return false;
    }
    request->Reset(timeoutSeconds);
    if (!FitsOneLine(texts)) {
        Fail(kErrServerReply, "Hay caracteres que no puede llevar una orden");
        return false;
    }
    running = command;
    return true;
}

void TransferClient::Execute(const QString& url, const QString& method) {
    if (executing) {
        Fail(kErrServerReply, "Ya hay una petición en curso");
        return;
    }
    running = Command::Other;
    request->Reset(timeoutSeconds);
    request->PrepareHttp(url.toUtf8(), method.toLatin1());
    Start();
}

QString TransferClient::OpenURL(const QString& url) {
    const bool taken = executing;
    const QPointer<TransferClient> alive(this);
    Execute(url, "GET");
    while (!taken && alive && StillExecuting()) {
        WaitForEvents();
    }
    return !taken && alive && responseCode == 0 ? FromAnsi(request->body) : QString();
}

// Starts the prepared request, paced so that a server that fails at once isn't asked more than
// twenty times a second.
void TransferClient::Start() {
    executing = true;
    responseCode = 0;
    responseInfo.clear();
    const QPointer<TransferClient> alive(this);
    const std::weak_ptr<TransferRequest> started = request;
    Report({kStateResolving});
    if (!alive || started.lock() != request) { // a slot has given it up
        return;
    }
    const bool atOnce =
        request->Connected() || !lastConnect.isValid() || lastConnect.hasExpired(kConnectPace);
    lastConnect.start();
    if (atOnce) {
        StartNow();
        return;
    }
    QTimer::singleShot(kConnectPace, this, [this, started] {
        if (started.lock() == request) {
            StartNow();
        }
    });
}

void TransferClient::StartNow() {
    request->Start([this](CURLcode code) { Finish(code); });
}

bool TransferClient::StillExecuting() const {
    return executing;
}

void TransferClient::Cancel() {
    if (executing) {
        Renew();
        responseCode = kErrConnectionAborted;
        responseInfo = FailureText(responseCode);
    }
}

int TransferClient::HttpStatus() const {
    return request->words.Status();
}

QString TransferClient::GetHeader(const QString& name) const {
    return request->words.Header(name);
}

QByteArray TransferClient::GetChunk(int size) {
    QByteArray chunk = request->body.left(std::max(size, 0));
    request->body.remove(0, chunk.size());
    if (request->body.isEmpty()) {
        request->body.clear(); // with its memory
    }
    return chunk;
}

void TransferClient::Finish(int curlCode) {
    executing = false;
    if (running == Command::Close) {
        Renew();
        Report({kStateDisconnecting, kStateDisconnected, kStateReceived, kStateCompleted});
        return;
    }
    const QByteArray reply = request->words.Reply();
    if (curlCode == CURLE_OK || (curlCode == kUploadNotConfirmed && reply.startsWith('2'))) {
        folder = running == Command::OpenFolder ? newFolder : folder;
        Complete();
        return;
    }
    const int number = FailureNumber(curlCode);
    if (!request->cutReason.isEmpty()) {
        Fail(kErrServerReply, FromAnsi(request->cutReason));
    } else if (reply.startsWith(kServiceEnds) ||
               (curlCode == kUploadNotConfirmed && IsRefusal(reply))) {
        Fail(kErrServerReply, FromAnsi(reply));
    } else if (IsRefusal(reply) && (number == kErrServerReply || number == kErrLogin)) {
        Fail(number, FromAnsi(reply));
    } else {
        Fail(number, FailureText(number));
    }
}

void TransferClient::Fail(int code, const QString& info) {
    responseCode = code;
    responseInfo = info;
    Report({kStateError});
}

void TransferClient::Complete() {
    responseCode = 0;
    responseInfo.clear();
    Report({kStateReceived, kStateCompleted});
}

// As long as the slots leave the client alive.
void TransferClient::Report(std::initializer_list<int> states) {
    const QPointer<TransferClient> alive(this);
    for (const int state : states) {
        if (alive) {
            emit StateChanged(state);
        }
    }
}

// Gives up what runs and the connection with it.
void TransferClient::Renew() {
    executing = false;
    folder.clear();
    if (request) {
        request->Abandon();
    }
    request = TransferRequest::Make([this](int state) { emit StateChanged(state); });
}
