// One open store file: the SQLite connection that all cursors of a process share.
//
// Rollback journal (the file may lie on a network share), synchronous=EXTRA, a busy time-out of
// kBusyMilliseconds with the wait pointer after a moment, foreign processes assumed. The connection
// knows what the statements need beyond SQLite: cstr(), like and comparison without regard to case
// for all of Spanish, and the collation SPANISH, by which text columns are declared (spanish.h).
// While a store is open nothing else in the process may open the same file: closing it would drop
// the engine's locks.
#pragma once

#include "engine/spanish.h"
#include "engine/storeerror.h"

#include <QString>
#include <memory>

struct sqlite3;

inline constexpr int kBusyMilliseconds = 5000;

class StoreConnection {
public:
    // Opens an existing store for reading and writing, a store file that only may be read for
    // reading (its writes fail with kErrDisk). kErrOpen when it is missing, is no store or is
    // claimed by another process (presence.h); kErrBusy while another process writes for longer
    // than the time-out.
    static std::shared_ptr<StoreConnection> Open(const QString& path);

    // Creates a new, empty store; kErrOpen when the file exists or can't be made.
    static std::shared_ptr<StoreConnection> Create(const QString& path);

    ~StoreConnection();
    StoreConnection(const StoreConnection&) = delete;
    StoreConnection& operator=(const StoreConnection&) = delete;

    const QString& Path() const;

    // Runs statements of the engine's own SQL without a result, separated by ";" (schemas and
    // delivered rows), in one transaction: all of them or, on a failure, none.
    void Execute(const QString& statements);

    // Writes a compacted copy of the whole store to a new file, checks it and brings it to the
    // disk. A failure (kErrDisk also when `path` exists or the store is damaged) leaves no copy.
    void CompactInto(const QString& path);

    // Whether another process has the store open. To keep others out for longer than a moment
    // there is StoreClaim (presence.h).
    bool OpenElsewhere() const;

    sqlite3* Handle() const;

private:
    StoreConnection();
    static std::shared_ptr<StoreConnection> Connect(const QString& path);
    struct Data;
    std::unique_ptr<Data> d;
};
