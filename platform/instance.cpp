#include "platform/instance.h"

#include "platform/events.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QPointer>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int kAnswerMilliseconds = 2000;
constexpr int kRetryMilliseconds = 50; // while the other program has its lock but no socket yet
constexpr mode_t kFolderMode = 0700;
constexpr mode_t kFileMode = 0600;
constexpr char kLockName[] = "lumenta.lock";
constexpr char kSocketName[] = "lumenta.socket";
constexpr char kAnswer[] = "ok";

// Open while this process has the place; the system lets go of its lock when the process ends.
int lockFile = -1;
QPointer<QLocalServer> server;
std::function<void()> raiseHandler;

// A folder that belongs to this user and that nobody else may enter.
bool IsOwnFolder(const QString& path) {
    struct stat status {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == ::geteuid() && (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

// Where the lock and the socket lie, with trailing "/"; empty if the user has no safe place.
QString PlaceFolder() {
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (runtime.startsWith(u'/') && IsOwnFolder(runtime)) {
        return runtime + u'/';
    }
    const QString own = QDir::tempPath() + QStringLiteral("/lumenta-%1").arg(::geteuid());
    ::mkdir(QFile::encodeName(own).constData(), kFolderMode);
    return IsOwnFolder(own) ? own + u'/' : QString();
}

// Requests wait for their answer until there is a handler.
void ServeRequests() {
    while (raiseHandler && server && server->hasPendingConnections()) {
        QLocalSocket* request = server->nextPendingConnection();
        QObject::connect(request, &QLocalSocket::disconnected, request, &QObject::deleteLater);
        raiseHandler();
        request->write(kAnswer);
        request->disconnectFromServer(); // after the answer is through
    }
}

// The lock is ours, so a socket that lies there is a dead program's. Without a socket the program
// runs all the same, only nobody can raise it.
void Listen(const QString& folder) {
    server = new QLocalServer(QCoreApplication::instance());
    server->setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(folder + kSocketName);
    QObject::connect(server, &QLocalServer::newConnection, server, &ServeRequests);
    server->listen(folder + kSocketName);
}

} // namespace

bool ClaimInstance() {
    const QString folder = PlaceFolder();
    // A user without a safe place can't be kept from starting.
    if (lockFile >= 0 || folder.isEmpty()) {
        return true;
    }
    const int file = ::open(QFile::encodeName(folder + kLockName).constData(),
                            O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, kFileMode);
    if (file < 0) {
        return true;
    }
    if (::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        ::close(file);
        return false;
    }
    lockFile = file;
    Listen(folder);
    return true;
}

bool RaiseRunningInstance() {
    const QDeadlineTimer deadline(kAnswerMilliseconds);
    const QString folder = PlaceFolder();
    const QString name = folder + kSocketName;
    if (folder.isEmpty()) {
        return false;
    }
    QLocalSocket socket;
    for (;;) {
        socket.connectToServer(name);
        if (socket.waitForConnected(kRetryMilliseconds)) {
            break;
        }
        if (deadline.hasExpired()) {
            return false;
        }
        WaitForEvents(kRetryMilliseconds);
    }
    QByteArray answer;
    while (!deadline.hasExpired() && answer != kAnswer) {
        if (!socket.waitForReadyRead(static_cast<int>(deadline.remainingTime()))) {
            return false;
        }
        answer += socket.readAll();
    }
    return answer == kAnswer;
}

void OnRaiseRequest(std::function<void()> raise) {
    raiseHandler = std::move(raise);
    ServeRequests();
}

void ReleaseInstance() {
    delete server;
    raiseHandler = nullptr;
    if (lockFile >= 0) {
        ::close(std::exchange(lockFile, -1));
    }
}
