#include "store/maintenance.h"

#include "core/settings.h"
#include "engine/presence.h"
#include "engine/storeengine.h"
#include "platform/fileops.h"

#include <QFile>

namespace {

constexpr char kTemporaryEnding[] = ".tmp";
constexpr char kBackupEnding[] = ".bak";

} // namespace

int CompactStore(const QString& path) {
    const QString temporary = path + kTemporaryEnding;
    try {
        auto store = StoreConnection::Open(path);
        const StoreClaim alone(path);
        if (!alone.Held()) {
            return kErrBusy;
        }
        if (QFile::exists(temporary)) {
            FileOperation(FileOp::Delete, {temporary}, {});
        }
        store->CompactInto(temporary);
        store.reset();
        const int moved = FileOperation(FileOp::Move, {path}, path + kBackupEnding);
        return moved != 0 ? moved : FileOperation(FileOp::Rename, {temporary}, path);
    } catch (const StoreError& error) {
        return error.number;
    }
}

void FinishCompaction(const QString& path) {
    const bool cutOff = !QFile::exists(path) && QFile::exists(path + kBackupEnding) &&
                        QFile::exists(path + kTemporaryEnding);
    if (cutOff && StoreClaim(path).Held()) {
        FileOperation(FileOp::Rename, {path + kTemporaryEnding}, path);
    }
}

MoveResult MoveStoreFiles(const QString& newFolder) {
    const QString path = DBpath + DBname;
    if (!QFile::exists(path)) {
        return MoveResult::Failed;
    }
    const StoreClaim alone(path);
    if (!alone.Held()) {
        return MoveResult::InUse;
    }
    if (FileOperation(FileOp::Move, {WithSeparator(DBpath) + "*.*"}, newFolder) != 0) {
        return MoveResult::Failed;
    }
    SetStoreFolder(newFolder);
    return MoveResult::Moved;
}
