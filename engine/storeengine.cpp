#include "engine/storeengine.h"

#include "engine/presence.h"
#include "engine/statement.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTimer>
#include <cerrno>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

struct StoreConnection::Data {
    QString path;
    QElapsedTimer waiting; // since the present wait for another process began
    std::shared_ptr<StorePresence> presence;
    sqlite3* handle = nullptr;
};

namespace {

// A store may come from anywhere: its pages are checked as they are read, and nothing in its schema
// may call functions with effects.
constexpr char kPragmas[] = "PRAGMA journal_mode=DELETE;"
                            "PRAGMA synchronous=EXTRA;"
                            "PRAGMA temp_store=MEMORY;"
                            "PRAGMA cache_size=-16000;" // KiB
                            "PRAGMA cell_size_check=ON;"
                            "PRAGMA trusted_schema=OFF";

constexpr int kCreateMode = 0666; // less the user's umask, as for any document

[[noreturn]] void RefuseToOpen(const QString& path, const QString& reason) {
    throw StoreError(kErrOpen,
                     QStringLiteral("No se puede abrir la base de datos %1: %2").arg(path, reason));
}

void Run(sqlite3* handle, const QByteArray& sql) {
    const int code = sqlite3_exec(handle, sql.constData(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) {
        throw EngineError(handle, code);
    }
}

qint64 ReadNumber(sqlite3* handle, const char* sql) {
    Statement statement(handle, sql);
    return statement.Step() ? CellInteger(statement.Column(0)) : 0;
}

// Reading the catalogue of tables makes the engine check the file's header, its length and the
// schema, and roll back what a killed process left half written.
void CheckIsStore(sqlite3* handle) {
    ReadNumber(handle, "SELECT count(*) FROM sqlite_master");
    if (ReadNumber(handle, "PRAGMA page_count") == 0) {
        throw StoreError(kErrOpen, QStringLiteral("el fichero está vacío"));
    }
}

// Short and even waits: with the engine's own ones, which grow, a process that waits long is
// overtaken by those that have just come.
constexpr int kBusyStepMilliseconds = 2;

// A user notices waits that are longer.
constexpr int kUnnoticedMilliseconds = 200;

bool pointerWaits = false;

// The pointer alone tells of a wait: served events could bring handlers that use the engine in the
// middle of a statement. The event loop turns it back when the statement has ended.
void ShowWait() {
    if (pointerWaits || qobject_cast<QGuiApplication*>(qApp) == nullptr) {
        return;
    }
    pointerWaits = true;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QTimer::singleShot(0, qApp, [] {
        QGuiApplication::restoreOverrideCursor();
        pointerWaits = false;
    });
}

int WaitForOthers(void* waiting, int round) {
    auto* timer = static_cast<QElapsedTimer*>(waiting);
    if (round == 0) {
        timer->start();
    }
    if (timer->hasExpired(kBusyMilliseconds)) {
        return 0;
    }
    if (timer->hasExpired(kUnnoticedMilliseconds)) {
        ShowWait();
    }
    sqlite3_sleep(kBusyStepMilliseconds);
    return 1;
}

void SyncToDisk(const QString& path) {
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    for (const QByteArray& name : {QFile::encodeName(path), folder}) {
        const int descriptor = open(name.constData(), O_RDONLY | O_CLOEXEC);
        const bool synced = descriptor >= 0 && fsync(descriptor) == 0;
        const int error = errno;
        close(descriptor);
        // Some network folders can't be synchronised; the file itself must be.
        if (!synced && name != folder) {
            throw StoreError(
                kErrDisk,
                QStringLiteral("No se puede escribir %1: %2").arg(path, qt_error_string(error)));
        }
    }
}

// The connection itself looks at the copy, so that no second one leaves a lock file beside it.
void CheckCopy(sqlite3* handle, const QString& path) {
    Statement attach(handle, "ATTACH ? AS copy");
    attach.Bind(1, path);
    attach.Step();
    QString outcome;
    {
        Statement check(handle, "PRAGMA copy.integrity_check(1)");
        outcome = check.Step() ? CellText(check.Column(0)) : QString();
    }
    Run(handle, "DETACH copy");
    if (outcome != QStringLiteral("ok")) {
        throw StoreError(kErrDisk,
                         QStringLiteral("La copia compactada no es correcta (%1)").arg(outcome));
    }
}

} // namespace

StoreConnection::StoreConnection() : d(std::make_unique<Data>()) {}

StoreConnection::~StoreConnection() {
    sqlite3_close_v2(d->handle);
}

std::shared_ptr<StoreConnection> StoreConnection::Connect(const QString& path) {
    std::shared_ptr<StoreConnection> connection(new StoreConnection);
    Data& data = *connection->d;
    data.path = path;
    data.presence = StorePresence::Enter(path);
    // An absolute path, which the engine can't take for one of its special names.
    const QByteArray name = QFileInfo(path).absoluteFilePath().toUtf8();
    int code = sqlite3_open_v2(name.constData(), &data.handle,
                               SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    if (code == SQLITE_OK) {
        code = InstallSpanish(data.handle);
    }
    if (code != SQLITE_OK) {
        throw EngineError(data.handle, code);
    }
    sqlite3_extended_result_codes(data.handle, 1);
    sqlite3_busy_handler(data.handle, WaitForOthers, &data.waiting);
    return connection;
}

std::shared_ptr<StoreConnection> StoreConnection::Open(const QString& path) {
    if (path.isEmpty() || !QFileInfo(path).isFile()) {
        RefuseToOpen(path, QStringLiteral("no existe el fichero"));
    }
    try {
        auto connection = Connect(path);
        CheckIsStore(connection->Handle());
        Run(connection->Handle(), kPragmas);
        return connection;
    } catch (const StoreError& error) {
        if (error.number == kErrBusy) {
            throw;
        }
        RefuseToOpen(path, error.Text());
    }
}

std::shared_ptr<StoreConnection> StoreConnection::Create(const QString& path) {
    const int descriptor = open(QFile::encodeName(path).constData(),
                                O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, kCreateMode);
    if (descriptor < 0) {
        RefuseToOpen(path, qt_error_string(errno));
    }
    close(descriptor);
    try {
        auto connection = Connect(path);
        Run(connection->Handle(), kPragmas);
        Run(connection->Handle(), "PRAGMA user_version=0"); // writes the file's first page
        return connection;
    } catch (const StoreError& error) {
        RefuseToOpen(path, error.Text());
    }
}

const QString& StoreConnection::Path() const {
    return d->path;
}

void StoreConnection::Execute(const QString& statements) {
    Transaction transaction(d->handle);
    Run(d->handle, statements.toUtf8());
    transaction.Commit();
}

void StoreConnection::CompactInto(const QString& path) {
    if (QFileInfo::exists(path)) {
        throw StoreError(kErrDisk, QStringLiteral("El fichero %1 ya existe").arg(path));
    }
    const QString copy = QFileInfo(path).absoluteFilePath();
    try {
        Statement vacuum(d->handle, "VACUUM INTO ?");
        vacuum.Bind(1, copy);
        vacuum.Step();
        CheckCopy(d->handle, copy);
        SyncToDisk(copy);
    } catch (const StoreError& error) {
        QFile::remove(copy);
        if (error.number == kErrBusy) {
            throw;
        }
        throw StoreError(kErrDisk, error.Text());
    }
}

bool StoreConnection::OpenElsewhere() const {
    return d->presence->AnyoneElse();
}

sqlite3* StoreConnection::Handle() const {
    return d->handle;
}
