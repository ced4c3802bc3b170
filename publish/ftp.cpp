#include "publish/ftp.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "forms/mainform.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/fileops.h"
#include "publish/md5control.h"
#include "site/abort.h"
#include "site/steps.h"
#include "site/transforms.h"
#include "transfer/transfer.h"

#include <QElapsedTimer>
#include <QFile>

int FTPLastState = 0;
QString FTPLastError;
int FTPRequestTimeout = 20;

namespace {

constexpr char kAnonymous[] = "anonymous";
constexpr char kStagingFile[] = "kpfftp.tmp"; // in the store's folder

TransferClient* client = nullptr;

// What the staging file holds has been sent and counts as removed. The file itself stays until the
// last one has gone: making it anew for each takes file systems longer and longer.
bool stagedIsSent = false;

// The file that is named as being sent, none before the first one, and since when.
QString shownName;
QElapsedTimer lastShown;

void OnFTPStateChanged(int state) {
    FTPLastState = state;
    if (state == kStateError) {
        FTPLastError = ineFTPSend().ResponseInfo();
    }
}

// The box for settings that can't be a server, and whatever else fails outside its own answers.
void TellConnectFailure() {
    MsgBox("Se produjo un error al intentar conectar con el servidor FTP '" + FTPServer +
               "'.\n Asegúrese que la configuración es la correcta.",
           BoxIcon::Warning, AppName);
}

bool OpenRemoteFolder() {
    const auto open = [](TransferClient& server) { server.OpenFolder(FTPPath); };
    const auto make = [](TransferClient& server) { server.MakeFolder(FTPPath); };
    return ExecuteFTPCommand(open) || (ExecuteFTPCommand(make) && ExecuteFTPCommand(open));
}

// Highest index of the data: what the progress of a file counts as, on purpose one byte less than
// is sent.
double CountedBytes(const OutputFile& file) {
    return double(file.Data.size()) - 1;
}

bool Differs(const OutputFile& file) {
    return !IsFileUnchanged(file.Name, file.Md5);
}

// Returns the bytes that will be counted.
double MarkChangedFiles(std::vector<OutputFile>& files) {
    MarkForSending(files, Differs);
    double total = 0;
    for (const OutputFile& file : files) {
        total += file.SendNow ? CountedBytes(file) : 0;
    }
    return total;
}

// The staging file is neither emptied nor removed first: what a stopped publish left behind the new
// content goes along. The manual tells the user to delete that file then.
void Stage(const QByteArray& data) {
    QFile staging(DBpath + kStagingFile);
    if (!staging.open(QIODevice::ReadWrite) || (stagedIsSent && !staging.resize(data.size())) ||
        staging.write(data) != data.size()) {
        throw std::runtime_error("No se puede escribir el fichero " +
                                 (DBpath + kStagingFile).toStdString());
    }
    stagedIsSent = false;
}

void RemoveStaged() {
    if (stagedIsSent && QFile::exists(DBpath + kStagingFile)) {
        FileOperation(FileOp::Delete, {DBpath + kStagingFile}, {});
    }
}

// Each change of a text lays the form out anew, which costs more than sending a small file. So a
// name is shown only if the one before could be read: a file that is quicker goes unnamed.
void ShowSending(const QString& name) {
    const bool readable = !lastShown.isValid() || lastShown.elapsed() >= kServeInterval;
    if (readable && name != shownName && !AbortPublish) {
        ReportActivity("Enviando " + name);
        shownName = name;
        lastShown.start();
    }
}

void ShowRemaining(double sent, double total) {
    ReportRemaining(TimeRemaining(sent, total));
}

void TellTransferFailure(const QString& name) {
    MsgBox("Error al enviar el archivo" + name + ". " + ineFTPSend().ResponseInfo() + " (" +
               QString::number(ineFTPSend().ResponseCode()) + ").",
           BoxIcon::Information, AppName);
}

enum class Sent { Yes, Retry, Stop };

// One file to its end. It is recorded before the outcome is looked at: a failed file counts as
// sent.
Sent SendFile(const OutputFile& file, double sent, double total) {
    const QString name = TrimBlanks(file.Name);
    Stage(file.Data);
    ineFTPSend().SendFile(DBpath + kStagingFile, name);
    while (ineFTPSend().StillExecuting()) {
        ShowSending(name);
        WaitForEvents();
        ShowRemaining(sent, total);
    }
    RecordFileSent(file.Name, file.Md5);
    if (FTPLastState == kStateCompleted) {
        return Sent::Yes;
    }
    if (ineFTPSend().ResponseCode() == kErrConnectionReset) {
        CloseFTP();
        if (ConnectFTP()) {
            return Sent::Retry;
        }
        StepFailed();
        return Sent::Stop;
    }
    StepFailed();
    TellTransferFailure(name);
    return Sent::Stop;
}

} // namespace

bool SendFiles(std::vector<OutputFile>& files) {
    if (!ConnectFTP()) {
        StepFailed();
        return false;
    }
    NextStep();
    return SendChangedFiles(files);
}

bool ConnectFTP() {
    try {
        ineFTPSend().SetServer(FTPServer, FTPUser.isEmpty() ? kAnonymous : FTPUser, FTPPass);
        ineFTPSend().SetRequestTimeout(FTPRequestTimeout);
        if (OpenRemoteFolder()) {
            return true;
        }
    } catch (const std::exception&) {
        TellConnectFailure();
        return false;
    }
    MsgBox("Error al conectar con el servidor FTP '" + FTPServer + "'. " + FTPLastError,
           BoxIcon::Warning, AppName);
    return false;
}

bool ExecuteFTPCommand(const std::function<void(TransferClient&)>& start) {
    start(ineFTPSend());
    while (ineFTPSend().StillExecuting()) {
        WaitForEvents();
    }
    return FTPLastState == kStateCompleted;
}

bool SendChangedFiles(std::vector<OutputFile>& files) {
    const double total = MarkChangedFiles(files);
    double sent = 0;
    stagedIsSent = false;
    shownName.clear();
    lastShown.invalidate();
    ResetTimeRemaining();
    for (std::size_t i = 0; i < files.size() && !AbortPublish;) {
        SetProgress(static_cast<int>(i), static_cast<int>(files.size()) - 1, 0, kBarTask);
        const OutputFile& file = files[i];
        if (file.SendNow && !TrimBlanks(file.Name).isEmpty()) {
            const Sent outcome = SendFile(file, sent, total);
            if (outcome == Sent::Stop) {
                return true;
            }
            stagedIsSent = true;
            sent += CountedBytes(file); // of a file that is tried again, each time
            ShowRemaining(sent, total);
            i -= outcome == Sent::Retry ? 1 : 0;
        }
        ++i;
        DoEvents();
    }
    RemoveStaged();
    CloseFTP();
    if (AbortPublish) {
        return false;
    }
    StepDone();
    return true;
}

void CloseFTP() {
    if (ineFTPSend().StillExecuting()) {
        ineFTPSend().Cancel();
    }
    ineFTPSend().CloseSession();
}

TransferClient& ineFTPSend() {
    if (client == nullptr) {
        client = new TransferClient(frmMain);
        QObject::connect(client, &TransferClient::StateChanged, client, OnFTPStateChanged);
        QObject::connect(client, &QObject::destroyed, [] { client = nullptr; });
    }
    return *client;
}
