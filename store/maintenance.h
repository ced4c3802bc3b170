// Compacting and moving the store. Both need it alone: while another process has it open they are
// refused and touch nothing. The caller has closed it in this process.
#pragma once

#include <QString>

// Writes a compacted copy beside the store, keeps the old file as ".bak" (replacing the last one)
// and puts the copy in its place. The old file moves only when the copy is complete; a failure
// before that leaves everything as it was. 0 on success, kErrBusy when another process has the
// store open, otherwise another number.
int CompactStore(const QString& path);

// Before a store is opened: a compaction that was cut off between putting the old file aside and
// the finished copy in its place is ended. Does nothing else.
void FinishCompaction(const QString& path);

enum class MoveResult { Moved, InUse, Failed };

// Moves every file of the store's folder, pictures and backup included, and makes that folder the
// store's. TemplPath follows. A failure changes no setting.
MoveResult MoveStoreFiles(const QString& newFolder);
