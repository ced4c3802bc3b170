// The libcurl side of a transfer client: one handle with its event loop and connection, the options
// of each kind of request, and what the callbacks fill.
//
// At the end of an upload libcurl would wait inside itself for the server's reply, which on a slow
// line is most of the time that a file takes. So the request ends the data stream itself and pauses
// until the reply is there. What waits are left inside libcurl, such as for the rest of a reply,
// serve the window from a callback: a slot may give a request up, or delete its client, while
// libcurl is on the stack. The request says nothing more from then on, libcurl is told to stop, and
// the loop keeps everything alive until it has.
#pragma once

#include "transfer/curlloop.h"
#include "transfer/serverwords.h"

#include <QByteArray>
#include <QFile>
#include <QSet>
#include <QString>
#include <functional>
#include <memory>

// Who is logged in where; the texts are as HostInAddress and ToAnsi give them.
struct FtpAccount {
    QByteArray host;
    int port = 0;
    QByteArray user;
    QByteArray password;

    bool operator==(const FtpAccount&) const = default;
};

class TransferRequest {
public:
    // `report` gets the states of the request under way (transferstates.h), partly inside libcurl.
    static std::shared_ptr<TransferRequest> Make(std::function<void(int)> report);
    ~TransferRequest();
    TransferRequest(const TransferRequest&) = delete;
    TransferRequest& operator=(const TransferRequest&) = delete;

    // A fresh set of options for one of the next four; connections stay. `seconds` as in
    // SetRequestTimeout of the client.
    void Reset(int seconds);

    void PrepareHttp(const QByteArray& url, const QByteArray& method);

    // Opens a folder, as FolderInAddress gives it.
    void PrepareFolder(const FtpAccount& account, const QByteArray& folder);

    // One command of the server's own, without a folder or a file.
    void PrepareCommand(const FtpAccount& account, const QByteArray& command);

    // Sends a local file as folder + name. False if the file can't be read.
    bool PrepareUpload(const FtpAccount& account, const QByteArray& path, const QString& file);

    // `finished` as in CurlLoop.
    void Start(std::function<void(CURLcode)> finished);

    // Gives up whatever runs; nothing is reported any more.
    void Abandon();

    // A control connection stands and the server hasn't ended it.
    bool Connected() const;

    ServerWords words;
    QByteArray cutReason; // what a server said when it cut an upload, or none
    QByteArray body;      // what nobody has taken yet

private:
    explicit TransferRequest(std::function<void(int)> report);

    static size_t OnRead(char* buffer, size_t size, size_t count, void* self);
    static size_t OnBody(const char* data, size_t size, size_t count, void* self);
    static size_t OnHeader(const char* data, size_t size, size_t count, void* self);
    static int OnProgress(void* self, curl_off_t toGet, curl_off_t got, curl_off_t toSend,
                          curl_off_t sent);
    static curl_socket_t OnOpenSocket(void* self, curlsocktype purpose, curl_sockaddr* address);
    static int OnCloseSocket(void* self, curl_socket_t socket);
    static int OnConnected(void* self, char* remoteAddress, char* localAddress, int remotePort,
                           int localPort);

    void AwaitReply();
    void Report(int state) const;
    void SetTimeouts(int seconds);
    void SetCallbacks();
    void PrepareFtp(const FtpAccount& account, const QByteArray& path);

    CURL* easy;
    curl_slist* quote = nullptr;
    QFile upload;
    std::function<void(int)> report; // empty once abandoned
    bool asked = false;              // the request proper has begun, behind connection and log-in
    bool answered = false;
    int timeoutSeconds = 0;
    bool allSent = false;     // the data stream of an upload has been ended
    bool unanswered = false;  // and no reply has come to it in time
    int controlPort = 0;      // of the server; 0 for HTTP
    QSet<int> controlSockets; // open ones
    curl_socket_t dataSocket = CURL_SOCKET_BAD;
    CurlLoop loop; // the last member: while it goes, connections are closed through the callbacks
};
