#include "app/update.h"

#include "app/mainscreen.h"
#include "app/updatefile.h"
#include "app/updatescreen.h"
#include "app/workflow.h"
#include "core/addresses.h"
#include "core/flavour.h"
#include "core/settings.h"
#include "forms/mainform.h"
#include "platform/dialogs.h"
#include "site/steps.h"
#include "text/ansi.h"
#include "transfer/signature.h"
#include "transfer/transfer.h"

#include <QProcess>
#include <QTimer>
#include <memory>

bool UpdateDownloading = false;

namespace {

// Between two looks at the transfer, and so between two texts of the label: milliseconds.
constexpr int kLookEvery = 40;

constexpr int kVersionLength = 12; // characters
constexpr int kHttpOk = 200;
constexpr int kPiece = 64 << 10; // bytes written at once

// Files of the service; the installer is stored under the same name.
constexpr char kVersionFile[] = "fileversion.txt";
constexpr char kInstaller[] = "update.exe";
constexpr char kSignature[] = "update.exe.sig";

constexpr char kSearching[] = "Buscando actualizaciones...";
constexpr char kNoNewVersion[] = "No existen nuevas versiones";
constexpr char kPending[] = "Nueva versión pendiente de descargar";
constexpr char kQuestion[] =
    "Hay una nueva versión del programa. ¿Deseas actualizar la aplicación?";
constexpr char kQuestionTitle[] = "Actualización";
constexpr char kNotDownloaded[] = "No se ha podido descargar la nueva versión";
constexpr char kNotVerified[] = "La nueva versión no se ha podido comprobar";
constexpr char kNotInstalled[] = "No se ha podido instalar la nueva versión";
constexpr char kNoLength[] =
    "El servidor de actualizaciones no ha dicho cuánto ocupa la nueva versión.";

// What the update waits for.
enum class Stage {
    Nothing,
    Version,   // of the newest build
    Question,  // until it may be asked
    Installer, // to be whole
    Signature,
    HandOver, // until the program may end
    GivenUp   // until the controls may be enabled
};

// One for each main form, and gone with it. Looks at the transfer from the event loop, so that it
// goes on beneath whatever the user does, and never acts inside the client's signals.
class Update : public QObject {
public:
    explicit Update(QObject* parent);

private:
    void tmrUpdate_Timer();
    void Look();
    void Act();
    void CheckForUpdate();
    void Ask();
    void Download();
    bool BeginFile(bool bytesCame, bool ended);
    void EndFile();
    void AwaitSignature();
    void HandOver();
    bool CompleteFile();
    void GiveUp(const QString& text, const QString& complaint = {});
    void Restore();
    bool TakeAnswer(int longest);
    bool IsDocument() const;

    TransferClient ineUpdate;
    QTimer look;
    Stage stage = Stage::Nothing;
    QByteArray answer; // version or signature, as far as it has come
    std::unique_ptr<UpdateFile> file;
    double total = 0; // bytes, as the service has said
    QString failure;  // to be told in a box
    ControlsHold hold;
};

Update::Update(QObject* parent) : QObject(parent) {
    look.setInterval(kLookEvery);
    connect(&look, &QTimer::timeout, this, &Update::Look);
    connect(frmMain->tmrUpdate, &QTimer::timeout, this, &Update::tmrUpdate_Timer);
}

// During a publish it leaves its timer running, and comes again.
void Update::tmrUpdate_Timer() {
    if (PublishUnderWay()) {
        return;
    }
    frmMain->tmrUpdate->stop();
    frmMain->lblUpdate->setText(kSearching);
    const QString address = UpdateAddress(kVersionFile);
    if (address.isEmpty()) {
        frmMain->lblUpdate->setText(kNoNewVersion);
        return;
    }
    answer.clear();
    ineUpdate.Execute(address, "GET");
    stage = Stage::Version;
    look.start();
}

void Update::Look() {
    look.stop(); // what follows may yield
    try {
        Act();
    } catch (...) {
        GiveUp(kNotInstalled);
        look.start();
        throw;
    }
    if (stage != Stage::Nothing) {
        look.start();
    }
}

void Update::Act() {
    switch (stage) {
    case Stage::Nothing:
        break;
    case Stage::Version:
        CheckForUpdate();
        break;
    case Stage::Question:
        Ask();
        break;
    case Stage::Installer:
        Download();
        break;
    case Stage::Signature:
        AwaitSignature();
        break;
    case Stage::HandOver:
        HandOver();
        break;
    case Stage::GivenUp:
        Restore();
        break;
    }
}

// Versions are no numbers: their texts sort in the order of the builds.
void Update::CheckForUpdate() {
    if (!TakeAnswer(kVersionLength)) {
        return;
    }
    const QString remote = IsDocument() ? FromAnsi(answer) : QString();
    ineUpdate.Cancel();
    const bool newer = remote > ReadInstalledVersion() && remote.size() == kVersionLength;
    frmMain->lblUpdate->setText(newer ? kPending : kNoNewVersion);
    stage = newer ? Stage::Question : Stage::Nothing;
}

void Update::Ask() {
    if (!Undisturbed()) {
        return;
    }
    stage = Stage::Nothing;
    const TypingHold typing;
    if (MsgBox(kQuestion, BoxIcon::Information, BoxButtons::YesNo, BoxAnswer::No, kQuestionTitle) ==
        BoxAnswer::Yes) {
        UpdateDownloading = true;
        ineUpdate.Execute(UpdateAddress(kInstaller), "GET");
        ResetTimeRemaining();
        stage = Stage::Installer;
    }
}

void Update::Download() {
    const bool ended = !ineUpdate.StillExecuting(); // asked first: nothing comes after that
    QByteArray bytes = ineUpdate.GetChunk(kPiece);
    if (file == nullptr && !BeginFile(!bytes.isEmpty(), ended)) {
        return;
    }
    hold.Keep();
    for (; !bytes.isEmpty(); bytes = ineUpdate.GetChunk(kPiece)) {
        if (!file->Append(bytes)) {
            GiveUp(kNotDownloaded);
            return;
        }
    }
    const QString progress = ProgressText(file->Size(), total, ended);
    if (!progress.isEmpty()) {
        frmMain->lblUpdate->setText(progress);
    }
    if (ended) {
        EndFile();
    }
}

// True if there is a file now. A request that fails without a byte leaves the label as it is.
bool Update::BeginFile(bool bytesCame, bool ended) {
    if (!bytesCame && !ended) {
        return false;
    }
    const bool failed = !bytesCame && ineUpdate.ResponseCode() != 0;
    bool readable = false;
    const qint64 length = ineUpdate.GetHeader("Content-Length").toLongLong(&readable);
    if (failed && (readable || ineUpdate.HttpStatus() != kHttpOk)) {
        GiveUp({});
    } else if (ineUpdate.HttpStatus() != kHttpOk) {
        GiveUp(kNotDownloaded);
    } else if (!readable || length < 0) {
        GiveUp({}, kNoLength);
    } else {
        total = double(length);
        file = std::make_unique<UpdateFile>(DBpath + kInstaller);
        if (!Maker.updateKey.isEmpty()) {
            QFile::remove(file->FinalPath()); // whatever it is, it was not verified now
        }
        if (!file->Open()) {
            GiveUp(kNotDownloaded);
        }
    }
    return file != nullptr;
}

void Update::EndFile() {
    if (ineUpdate.ResponseCode() != 0 || double(file->Size()) != total || total == 0) {
        GiveUp(kNotDownloaded);
    } else if (Maker.updateKey.isEmpty()) {
        stage = Stage::HandOver;
    } else {
        answer.clear();
        ineUpdate.Execute(UpdateAddress(kSignature), "GET");
        stage = Stage::Signature;
    }
}

void Update::AwaitSignature() {
    hold.Keep();
    if (TakeAnswer(kSignatureLength)) {
        answer = IsDocument() ? answer : QByteArray();
        ineUpdate.Cancel();
        stage = Stage::HandOver;
    }
}

// The reference is validated and the product saved before anything starts: an installer must find
// a program that ends.
void Update::HandOver() {
    hold.Keep();
    if (!Undisturbed()) {
        return;
    }
    const QString installer = file->FinalPath();
    if (!CompleteFile()) {
        return;
    }
    bool cancel = false;
    LeaveMainScreen(cancel);
    if (cancel || !QProcess::startDetached(installer, {})) {
        GiveUp(kNotInstalled);
        return;
    }
    stage = frmMain->close() ? Stage::Nothing : Stage::GivenUp;
}

// What was verified is what is started, so that no tail may come behind it.
bool Update::CompleteFile() {
    if (!Maker.updateKey.isEmpty() && !IsSigned(file->Path(), answer, Maker.updateKey)) {
        GiveUp(kNotVerified);
        return false;
    }
    if ((Maker.updateKey.isEmpty() && !file->KeepOldTail()) || !file->TakeFinalName()) {
        GiveUp(kNotDownloaded);
        return false;
    }
    file.reset();
    return true;
}

// An empty text leaves the label as it is.
void Update::GiveUp(const QString& text, const QString& complaint) {
    ineUpdate.Cancel();
    file.reset();
    failure = complaint;
    if (!text.isEmpty()) {
        frmMain->lblUpdate->setText(text);
    }
    stage = Stage::GivenUp;
}

void Update::Restore() {
    if (!Undisturbed()) {
        return;
    }
    stage = Stage::Nothing;
    hold.Release();
    if (!failure.isEmpty()) {
        MsgBox(failure, BoxIcon::Warning, AppName);
    }
}

// True at the end of an answer, or once it is longer than one that is right.
bool Update::TakeAnswer(int longest) {
    const bool ended = !ineUpdate.StillExecuting();
    answer += ineUpdate.GetChunk(longest + 1 - int(answer.size()));
    return ended || answer.size() > longest;
}

// An error page is none.
bool Update::IsDocument() const {
    return ineUpdate.ResponseCode() == 0 && ineUpdate.HttpStatus() == kHttpOk;
}

} // namespace

void ConnectUpdate() {
    if (!IsUnattended()) {
        new Update(frmMain);
    }
}
