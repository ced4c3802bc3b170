// The way of a cursor's pending rows into the store: all of them in one transaction.
#pragma once

#include "engine/resultset.h"
#include "engine/rowlock.h"

#include <map>
#include <memory>
#include <vector>

class StoreConnection;

enum class PendingKind { Edited, Added, Deleted };

struct PendingRow {
    PendingKind kind = PendingKind::Edited;
    std::vector<Cell> original; // before the edit; all Null for an added row
};

// By row number of the result.
using PendingRows = std::map<int, PendingRow>;

// What the store made of an edited or added row.
struct WrittenRow {
    int row = 0;
    qint64 rowId = 0;
    std::vector<Cell> cells;       // of an added row, with the store's defaults; otherwise empty
    std::unique_ptr<RowLock> lock; // of an added row, when asked for
};

// Writes the columns that differ from the originals. A failure is a StoreError and leaves the store
// as it was: kErrNoCurrentRow when an edited row is gone. That a deleted row is gone already is no
// failure. With `lockAdded` added rows are locked before anyone can see them.
std::vector<WrittenRow> WritePendingRows(const StoreConnection& connection, const ResultSet& result,
                                         const PendingRows& pending, bool lockAdded);
