#include "store/maintenance.h"

#include "core/settings.h"
#include "platform/fileops.h"
#include "platform/storeengine.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr char kTemporaryEnding[] = ".tmp";
constexpr char kBackupEnding[] = ".bak";

} // namespace

int CompactStore(const QString& path) {
    const QString temporary = path + kTemporaryEnding;
    if (QFile::exists(temporary)) {
        FileOperation(FileOp::Delete, {temporary}, {});
    }
    try {
        const auto store = StoreConnection::Open(path);
        if (store->OpenElsewhere()) {
            return kErrBusy;
        }
        store->CompactInto(temporary);
    } catch (const StoreError& error) {
        return error.number;
    }
    const int moved = FileOperation(FileOp::Move, {path}, path + kBackupEnding);
    return moved != 0 ? moved : FileOperation(FileOp::Rename, {temporary}, path);
}

MoveResult MoveStoreFiles(const QString& newFolder) {
    try {
        if (StoreConnection::Open(DBpath + DBname)->OpenElsewhere()) {
            return MoveResult::InUse;
        }
    } catch (const StoreError&) {
        return MoveResult::Failed;
    }
    if (FileOperation(FileOp::Move, {WithSeparator(DBpath) + "*.*"}, newFolder) != 0) {
        return MoveResult::Failed;
    }
    SetStoreFolder(newFolder);
    return MoveResult::Moved;
}
