// One open store file: the SQLite connection that all cursors of a process share.
//
// Rollback journal (the file may lie on a network share), synchronous=EXTRA, a busy time-out of
// kBusyMilliseconds, foreign processes assumed. The connection knows what the statements need
// beyond SQLite: TOP n, cstr(), double-quoted texts, like and comparison without regard to case for
// all of Spanish, and the collation SPANISH, by which text columns are declared. While a store is
// open nothing else in the process may open the same file: closing it would drop the engine's
// locks.
#pragma once

#include "platform/recordset.h"

struct sqlite3;
struct sqlite3_stmt;

inline constexpr int kBusyMilliseconds = 5000;

class StoreConnection {
public:
    // Opens an existing store for reading and writing; kErrOpen when it is missing or is no store.
    static std::shared_ptr<StoreConnection> Open(const QString& path);

    // Creates a new, empty store; kErrOpen when the file exists or can't be made.
    static std::shared_ptr<StoreConnection> Create(const QString& path);

    ~StoreConnection();
    StoreConnection(const StoreConnection&) = delete;
    StoreConnection& operator=(const StoreConnection&) = delete;

    const QString& Path() const;

    // Runs statements without a result, separated by ";" (schemas and delivered rows).
    void Execute(const QString& statements);

    // Writes a compacted copy of the whole store to a new file.
    void CompactInto(const QString& path);

    // Whether another process has the store open.
    bool OpenElsewhere() const;

    sqlite3* Handle() const;

private:
    StoreConnection() = default;
    struct Data;
    std::unique_ptr<Data> d;
};

// The collation as a plain comparison for other rooms: negative, 0 or positive.
int CompareSpanish(QStringView left, QStringView right);
