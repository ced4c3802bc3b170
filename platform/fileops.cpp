#include "platform/fileops.h"

#include "platform/dialogs.h"
#include "platform/events.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr mode_t kUsualMode = 0666; // less the user's mask
constexpr mode_t kUserOnlyMode = 0600;
constexpr mode_t kPermissionBits = 07777;
constexpr size_t kCopyBytes = size_t{256} * 1024;

// Owns an open file descriptor; -1 is none.
class Descriptor {
public:
    explicit Descriptor(int descriptor) : handle(descriptor) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool IsOpen() const { return handle >= 0; }
    int Handle() const { return handle; }

    // False when the system couldn't write what it still held.
    bool Close() {
        const int closing = std::exchange(handle, -1);
        return closing < 0 || ::close(closing) == 0;
    }

private:
    int handle;
};

QByteArray SystemName(const QString& path) {
    return QFile::encodeName(path);
}

std::filesystem::path SystemPath(const QString& path) {
    return SystemName(path).toStdString();
}

// False with errno if there is nothing at `path`.
bool ReadStatus(const QString& path, struct stat& status) {
    return ::stat(SystemName(path).constData(), &status) == 0;
}

bool WriteAll(int descriptor, const char* data, size_t size) {
    while (size > 0) {
        const ssize_t written = ::write(descriptor, data, size);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            return false;
        }
        data += written;
        size -= static_cast<size_t>(written);
    }
    return true;
}

// A renamed file is only kept through a power failure once its folder is on disk. A file system
// that can't do it still has the file.
void SyncFolderOf(const QString& path) {
    const Descriptor folder(::open(SystemName(QFileInfo(path).absolutePath()).constData(),
                                   O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.IsOpen()) {
        ::fsync(folder.Handle());
    }
}

// A file being written beside the one that it will replace. Without Finish it vanishes. Not
// QSaveFile: that one takes a failed synchronisation for success, leaves the folder's entry to the
// next power failure, and refuses a file that may not be written where its folder may.
class Replacement {
public:
    Replacement(const QString& finalPath, mode_t mode)
        : path(finalPath), temporaryPath(NameBeside(finalPath)),
          file(::open(SystemName(temporaryPath).constData(),
                      O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode)) {}
    ~Replacement() {
        if (file.IsOpen()) {
            file.Close();
            ::unlink(SystemName(temporaryPath).constData());
        }
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    bool IsOpen() const { return file.IsOpen(); }
    int Handle() const { return file.Handle(); }

    // False with errno leaves what was there.
    bool Finish() {
        const bool written = ::fsync(file.Handle()) == 0;
        if (!written || !file.Close() ||
            std::rename(SystemName(temporaryPath).constData(), SystemName(path).constData()) != 0) {
            const int failure = errno;
            ::unlink(SystemName(temporaryPath).constData());
            errno = failure;
            return false;
        }
        SyncFolderOf(path);
        return true;
    }

private:
    static QString NameBeside(const QString& path) {
        static int number = 0;
        return QFileInfo(path).absolutePath() +
               QStringLiteral("/.%1-%2.nuevo").arg(::getpid()).arg(++number);
    }

    QString path;
    QString temporaryPath;
    Descriptor file;
};

// Not std::filesystem::copy_file, which neither replaces as a whole nor synchronises, and gives the
// copy of a private file its source's permissions.
bool CopyBytes(int from, int to) {
    std::vector<char> buffer(kCopyBytes);
    for (;;) {
        const ssize_t got = ::read(from, buffer.data(), buffer.size());
        if (got == 0) {
            return true;
        }
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0 || !WriteAll(to, buffer.data(), static_cast<size_t>(got))) {
            return false;
        }
    }
}

// Permissions and modification time; a file system without them does no harm.
void CopyStatus(const struct stat& status, int to) {
    const std::array<timespec, 2> times{status.st_atim, status.st_mtim};
    if (::fchmod(to, status.st_mode & kPermissionBits) != 0 || ::futimens(to, times.data()) != 0) {
        return;
    }
}

int CopyFile(const QString& source, const QString& target, bool withStatus) {
    const Descriptor from(::open(SystemName(source).constData(), O_RDONLY | O_CLOEXEC));
    struct stat status {};
    if (!from.IsOpen() || ::fstat(from.Handle(), &status) != 0) {
        return errno;
    }
    Replacement to(target, kUsualMode);
    if (!to.IsOpen() || !CopyBytes(from.Handle(), to.Handle())) {
        return errno;
    }
    if (withStatus) {
        CopyStatus(status, to.Handle());
    }
    return to.Finish() ? 0 : errno;
}

int MoveFile(const QString& source, const QString& target) {
    std::error_code renaming;
    std::filesystem::rename(SystemPath(source), SystemPath(target), renaming);
    if (renaming != std::errc::cross_device_link) {
        return renaming.value();
    }
    const int failure = CopyFile(source, target, true);
    if (failure != 0) {
        return failure;
    }
    return ::unlink(SystemName(source).constData()) == 0 ? 0 : errno;
}

bool IsPattern(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    return (name.contains(u'*') || name.contains(u'?')) && !QFileInfo::exists(path);
}

// Takes a source's files into `files`; an error number if it has none.
int ExpandSource(const QString& source, QStringList& files) {
    if (!IsPattern(source)) {
        struct stat status {};
        if (!ReadStatus(source, status)) {
            return errno;
        }
        files += source;
        return S_ISDIR(status.st_mode) ? EISDIR : 0;
    }
    const QFileInfo info(source);
    const QString folder = WithSeparator(info.path());
    QString pattern = info.fileName();
    // To the toolkit a "[" begins a set of characters, and "*.*" demands a dot.
    pattern =
        pattern == u"*.*" ? QStringLiteral("*") : pattern.replace(u'[', QStringLiteral("[[]"));
    const QStringList names =
        QDir(folder).entryList({pattern}, QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString& name : names) {
        files += folder + name;
    }
    return names.isEmpty() ? ENOENT : 0;
}

bool Confirmed(const QString& question, const QString& path) {
    return MsgBox(question.arg(QFileInfo(path).fileName()), BoxIcon::Question, BoxButtons::YesNo,
                  BoxAnswer::No, QStringLiteral("Confirmar")) == BoxAnswer::Yes;
}

// One file of a Move, Copy or Rename.
int TransferFile(FileOp operation, const QString& source, const QString& target,
                 bool askConfirmation) {
    std::error_code unreadable;
    if (std::filesystem::equivalent(SystemPath(source), SystemPath(target), unreadable)) {
        return 0;
    }
    if (QFileInfo(target).isDir()) {
        return EISDIR;
    }
    if (askConfirmation && QFileInfo::exists(target) &&
        !Confirmed(QStringLiteral("El fichero %1 ya existe. ¿Desea reemplazarlo?"), target)) {
        return ECANCELED;
    }
    return operation == FileOp::Copy ? CopyFile(source, target, false) : MoveFile(source, target);
}

int TransferFiles(FileOp operation, const QStringList& files, const QString& destination,
                  bool intoFolder, bool askConfirmation) {
    std::vector<std::pair<QString, QString>> done;
    for (const QString& file : files) {
        const QString target =
            intoFolder ? WithSeparator(destination) + QFileInfo(file).fileName() : destination;
        const int failure = TransferFile(operation, file, target, askConfirmation);
        if (failure != 0 && operation == FileOp::Move) {
            std::reverse(done.begin(), done.end());
            for (const auto& [origin, moved] : done) {
                MoveFile(moved, origin);
            }
        }
        if (failure != 0) {
            return failure;
        }
        done.emplace_back(file, target);
        DoEvents();
    }
    return 0;
}

int DeleteFiles(const QStringList& files, bool askConfirmation) {
    for (const QString& file : files) {
        if (askConfirmation && !Confirmed(QStringLiteral("¿Desea eliminar el fichero %1?"), file)) {
            return ECANCELED;
        }
        if (::unlink(SystemName(file).constData()) != 0) {
            return errno;
        }
        DoEvents();
    }
    return 0;
}

} // namespace

int FileOperation(FileOp operation, const QStringList& sources, const QString& destination,
                  bool askConfirmation) {
    QStringList files;
    bool needsFolder = sources.size() > 1 || destination.endsWith(u'/');
    for (const QString& source : sources) {
        needsFolder = needsFolder || IsPattern(source);
        const int failure = ExpandSource(source, files);
        if (failure != 0) {
            return failure;
        }
    }
    if (files.isEmpty()) {
        return ENOENT;
    }
    if (operation == FileOp::Delete) {
        return DeleteFiles(files, askConfirmation);
    }
    if (operation == FileOp::Rename) {
        return needsFolder ? EINVAL
                           : TransferFiles(operation, files, destination, false, askConfirmation);
    }
    const bool intoFolder = QFileInfo(destination).isDir();
    if (needsFolder && !intoFolder) {
        return ENOTDIR;
    }
    return TransferFiles(operation, files, destination, intoFolder, askConfirmation);
}

bool ReplaceFile(const QString& path, const QByteArray& data, FileReaders readers) {
    const QFileInfo info(path);
    const QString target = info.isSymLink() && info.exists() ? info.canonicalFilePath() : path;
    struct stat status {};
    const bool userOnly = readers == FileReaders::UserOnly;
    const bool replaces = ReadStatus(target, status);
    Replacement file(target, userOnly ? kUserOnlyMode : kUsualMode);
    if (!file.IsOpen() ||
        !WriteAll(file.Handle(), data.constData(), static_cast<size_t>(data.size()))) {
        return false;
    }
    // A file system without permissions does no harm.
    if (replaces && !userOnly && ::fchmod(file.Handle(), status.st_mode & kPermissionBits) != 0) {
        errno = 0;
    }
    return file.Finish();
}

QString WithSeparator(const QString& folder) {
    return folder.isEmpty() || folder.endsWith(u'/') ? folder : folder + u'/';
}
