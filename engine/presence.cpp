#include "engine/presence.h"

#include "engine/rowlock.h"
#include "engine/storeerror.h"

#include <fcntl.h>
#include <map>
#include <sys/stat.h>

namespace {

constexpr qint64 kPresenceByte = 0;

// A lock file by device and inode, so that it is one file under all of its names.
using FileKey = std::pair<dev_t, ino_t>;

// The presences of this process, by lock file: one open description for all connections, or the
// process would take itself for another one.
std::map<FileKey, std::weak_ptr<StorePresence>>& Presences() {
    static std::map<FileKey, std::weak_ptr<StorePresence>> presences;
    return presences;
}

FileKey KeyOf(const LockFile& file) {
    struct stat status = {};
    if (!file.IsOpen() || fstat(file.Descriptor(), &status) != 0) {
        return {};
    }
    return {status.st_dev, status.st_ino};
}

} // namespace

std::shared_ptr<StorePresence> StorePresence::Enter(const QString& storePath) {
    auto opened = std::make_unique<LockFile>(storePath);
    if (!opened->IsOpen()) {
        return std::shared_ptr<StorePresence>(new StorePresence(std::move(opened)));
    }
    std::erase_if(Presences(), [](const auto& entry) { return entry.second.expired(); });
    const FileKey key = KeyOf(*opened);
    if (std::shared_ptr<StorePresence> present = Presences()[key].lock()) {
        return present;
    }
    if (opened->SetLock(kPresenceByte, F_RDLCK) != 0) {
        throw StoreError(kErrOpen,
                         QStringLiteral("Otro usuario está compactando o moviendo la base de "
                                        "datos"));
    }
    std::shared_ptr<StorePresence> entered(new StorePresence(std::move(opened)));
    Presences()[key] = entered;
    return entered;
}

StorePresence::StorePresence(std::unique_ptr<LockFile> opened) : file(std::move(opened)) {}

// Leaves the list alone: when the toolkit ends the process by itself, as when the screen goes away,
// open stores outlive it.
StorePresence::~StorePresence() = default;

bool StorePresence::AnyoneElse() const {
    return file->IsOpen() && file->WouldConflict(kPresenceByte, F_WRLCK);
}

StoreClaim::StoreClaim(const QString& storePath) {
    try {
        presence = StorePresence::Enter(storePath);
    } catch (const StoreError&) {
        return; // another process has claimed it: not held, which is all that the caller asks
    }
    held = presence->file->IsWritable() && presence->file->SetLock(kPresenceByte, F_WRLCK) == 0;
}

StoreClaim::~StoreClaim() {
    if (held) {
        presence->file->SetLock(kPresenceByte, F_RDLCK); // for connections that remain
    }
}
