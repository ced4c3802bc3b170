#include "engine/rowlock.h"

#include "engine/storeerror.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int kRowBits = 47;
constexpr quint64 kRowMask = (1ULL << kRowBits) - 1;
constexpr quint64 kTableMask = 0x7FFF;

// Another name of the same store must lead to the same lock file.
QByteArray LockPath(const QString& storePath) {
    const QString canonical = QFileInfo(storePath).canonicalFilePath();
    return QFile::encodeName((canonical.isEmpty() ? storePath : canonical) + ".lck");
}

// Whoever may write the store may lock its rows.
mode_t StoreMode(const QString& storePath) {
    struct stat status = {};
    if (stat(QFile::encodeName(storePath).constData(), &status) != 0) {
        return 0600;
    }
    return status.st_mode & 0666;
}

qint64 RowOffset(const QByteArray& table, qint64 rowId) {
    const quint64 number = qChecksum(table.toLower()) & kTableMask;
    return static_cast<qint64>((number + 1) << kRowBits | (static_cast<quint64>(rowId) & kRowMask));
}

struct flock LockRequest(qint64 offset, short type) {
    struct flock request = {};
    request.l_type = type;
    request.l_whence = SEEK_SET;
    request.l_start = offset;
    request.l_len = 1;
    return request;
}

} // namespace

LockFile::LockFile(const QString& storePath) {
    const QByteArray path = LockPath(storePath);
    const mode_t mode = StoreMode(storePath);
    descriptor = open(path.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (descriptor >= 0) {
        // The process's umask must not shut out users who may write the store.
        static_cast<void>(fchmod(descriptor, mode));
    } else {
        descriptor = open(path.constData(), O_RDWR | O_CLOEXEC);
    }
    writable = descriptor >= 0;
    if (!writable) {
        descriptor = open(path.constData(), O_RDONLY | O_CLOEXEC);
    }
}

LockFile::~LockFile() {
    if (descriptor < 0) {
        return;
    }
    // A child just being started may hold a copy of the descriptor, which would keep the locks.
    struct flock all = LockRequest(0, F_UNLCK);
    all.l_len = 0;
    fcntl(descriptor, F_OFD_SETLK, &all);
    close(descriptor);
}

int LockFile::SetLock(qint64 offset, short type) const {
    struct flock request = LockRequest(offset, type);
    return fcntl(descriptor, F_OFD_SETLK, &request) == 0 ? 0 : errno;
}

bool LockFile::WouldConflict(qint64 offset, short type) const {
    struct flock request = LockRequest(offset, type);
    return fcntl(descriptor, F_OFD_GETLK, &request) == 0 && request.l_type != F_UNLCK;
}

RowLock::RowLock(const QString& storePath, const QByteArray& table, qint64 rowId)
    : file(storePath) {
    if (!file.IsWritable()) {
        throw StoreError(kErrRowLocked,
                         QStringLiteral("No se puede escribir en la carpeta de la base de datos, "
                                        "por lo que el registro no puede modificarse"));
    }
    const int error = file.SetLock(RowOffset(table, rowId), F_WRLCK);
    if (error == EAGAIN || error == EACCES) {
        throw StoreError(kErrRowLocked, QStringLiteral("Otro usuario tiene abierto el registro"));
    }
    if (error != 0) {
        throw StoreError(
            kErrRowLocked,
            QStringLiteral("El registro no puede bloquearse (%1)").arg(qt_error_string(error)));
    }
}
