// The transfer client: FTP commands and HTTP requests that run in the event loop while the caller
// polls.
//
// FTP (RFC 959, EPSV of RFC 2428 with PASV as the way back) is always binary. One control
// connection serves all commands until CloseSession; once the folder is open a file costs two
// commands on it, EPSV and STOR. Names and paths go over the wire in Windows-1252.
#pragma once

#include "transfer/transferstates.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <memory>

// Port of the FTP control connection. Process-wide, so that tests can point the program at a server
// of their own.
extern int FTPControlPort; // 21 at start

struct FtpAccount;
class TransferRequest;

class TransferClient : public QObject {
    Q_OBJECT

public:
    explicit TransferClient(QObject* parent = nullptr);
    ~TransferClient() override;

    // Take effect on the next command. Throws std::invalid_argument, and changes nothing, for what
    // can't be a host or has control characters. For hosts as a user may type them see
    // ftpaddress.h.
    void SetServer(const QString& host, const QString& user, const QString& password);

    // For a connection, a reply, or a transfer that stands still; 60 at start.
    void SetRequestTimeout(int seconds);

    // Each starts an FTP command and returns at once; the first one connects. A command while
    // another is running is refused as a failure, and so is one whose texts have control
    // characters.
    void OpenFolder(const QString& path);
    void MakeFolder(const QString& path);
    // Into the folder of the last OpenFolder; the name holds no "/".
    void SendFile(const QString& localPath, const QString& remoteName);
    void CloseSession(); // a success at once where there is none

    // Starts an HTTP request of `method` ("GET") and returns at once; header and body are kept for
    // GetHeader and GetChunk. Redirections are followed; an error page is an answer, no failure,
    // and told from a document by HttpStatus.
    void Execute(const QString& url, const QString& method);

    // The whole document as text, waiting in the event loop; empty after a failure.
    QString OpenURL(const QString& url);

    bool StillExecuting() const;

    // Number and text of the last failure; 0 and empty after a success.
    int ResponseCode() const { return responseCode; }
    const QString& ResponseInfo() const { return responseInfo; }

    // Abandons the running command with its connection, without waiting; no state is reported. It
    // may be called from a slot of StateChanged, and so may the client's deletion.
    void Cancel();

    // Status code of the last HTTP response (RFC 9110), 200 for a document; 0 while there is none.
    int HttpStatus() const;

    // Value of a header of the last HTTP response, without regard to case; empty if absent.
    QString GetHeader(const QString& name) const;

    // The next part of the body, at most `size` bytes: from the first byte on, while the request
    // still runs; empty where no more has come, and for no size. What is taken is no longer held.
    QByteArray GetChunk(int size);

signals:
    void StateChanged(int state);

private:
    enum class Command { OpenFolder, Close, Other };

    bool ReadyFor(Command command, const QString& texts);
    void Start();
    void StartNow();
    void Finish(int curlCode);
    void Fail(int code, const QString& info);
    void Complete();
    void Report(std::initializer_list<int> states);
    void Renew();

    std::shared_ptr<TransferRequest> request; // the libcurl side
    std::unique_ptr<FtpAccount> account;
    QString folder;    // that is open
    QString newFolder; // that is being opened
    int timeoutSeconds = 60;
    int responseCode = 0;
    QString responseInfo;
    QElapsedTimer lastConnect; // of a session
    bool executing = false;
    Command running = Command::Other; // while executing
};
