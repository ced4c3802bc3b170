// The transfer client: FTP commands and HTTP requests that run in the event loop while the caller
// polls.
//
// FTP (RFC 959, EPSV of RFC 2428 with PASV as the way back) is always binary. One control
// connection serves all commands until CLOSE; once the folder is open a file costs two commands on
// it, EPSV and STOR. Names and paths go over the wire in Windows-1252.
#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QObject>
#include <QString>
#include <memory>

// Port of the FTP control connection. Process-wide, so that tests can point the program at a server
// of their own.
extern int FTPControlPort; // 21 at start

// Numbers of failures that callers tell apart, those of the internet clients that the program grew
// up with.
inline constexpr int kErrTransferTimeout = 12002;
inline constexpr int kErrServerReply = 12003; // the server refused; its text is the ResponseInfo
inline constexpr int kErrHostNotFound = 12007;
inline constexpr int kErrLogin = 12014;
inline constexpr int kErrCannotConnect = 12029;
inline constexpr int kErrConnectionAborted = 12030;
inline constexpr int kErrConnectionReset = 12031;

// States that a command reports, as StateChanged.
enum TransferState {
    kStateResolving = 1,
    kStateResolved = 2,
    kStateConnecting = 3,
    kStateConnected = 4,
    kStateRequesting = 5,
    kStateRequestSent = 6,
    kStateReceiving = 7,
    kStateReceived = 8,
    kStateDisconnecting = 9,
    kStateDisconnected = 10,
    kStateError = 11,
    kStateCompleted = 12
};

class TransferClient : public QObject {
    Q_OBJECT

public:
    explicit TransferClient(QObject* parent = nullptr);
    ~TransferClient() override;

    // Take effect on the next command.
    void SetServer(const QString& host, const QString& user, const QString& password);
    void SetRequestTimeout(
        int seconds); // for a connection, a reply, or a transfer that stands still; 60 at start

    // Starts an FTP command and returns at once: CD path, MKDIR path, PUT "local file" "remote
    // name" (into the folder of the last CD), CLOSE. The first one connects. A command while
    // another is running is refused as a failure.
    void Execute(const QString& command);

    // Starts an HTTP request of `method` ("GET") and returns at once; header and body are kept for
    // GetHeader and GetChunk.
    void Execute(const QString& url, const QString& method);

    // The whole document as text, waiting in the event loop; empty after a failure.
    QString OpenURL(const QString& url);

    bool StillExecuting() const;

    // Number and text of the last failure; 0 and empty after a success.
    int ResponseCode() const { return responseCode; }
    const QString& ResponseInfo() const { return responseInfo; }

    // Abandons the running command with its connection, without waiting.
    void Cancel();

    // Value of a header of the last HTTP response, without regard to case; empty if absent.
    QString GetHeader(const QString& name) const;

    // The next part of the body, at most `size` bytes; empty at its end.
    QByteArray GetChunk(int size);

signals:
    void StateChanged(int state);

private:
    struct Request;

    void StartFTP(const QString& command);
    void PreparePut(const QString& operands);
    void Start();
    void Finish(int curlCode);
    void Fail(int code, const QString& info);
    void Complete();
    void DropConnection();

    std::shared_ptr<Request> request; // the libcurl side
    QString host;
    QString user;
    QString password;
    QString folder; // of the last successful CD
    int timeoutSeconds = 60;
    int responseCode = 0;
    QString responseInfo;
    QElapsedTimer lastConnect; // of a session
    bool executing = false;
    bool closing = false;     // the command under way is CLOSE
    bool sessionOpen = false; // the control connection stands, as far as is known
};
