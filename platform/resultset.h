// The complete result of one statement in memory, and the way back from its rows to the store.
#pragma once

#include "platform/cell.h"

#include <QByteArray>
#include <vector>

class StoreConnection;

struct ResultColumn {
    QString name;
    QByteArray origin; // the table's column that it shows; empty for a computed one
    Affinity affinity = Affinity::None;
};

// The fields of all rows, every row as many as there are columns. Rows never move, so that filling
// costs no copying.
class CellRows {
public:
    explicit CellRows(size_t columnCount = 0) : columns(columnCount) {}

    int Count() const { return count; }
    Cell* Row(int row) { return &blocks[row / kRowsPerBlock][row % kRowsPerBlock * columns]; }
    const Cell* Row(int row) const {
        return &blocks[row / kRowsPerBlock][row % kRowsPerBlock * columns];
    }

    // The next field of the last row; the first one beyond a full row begins another.
    template <typename Value> void Append(Value&& value) {
        if (column == 0) {
            BeginRow();
        }
        blocks.back().emplace_back(std::forward<Value>(value));
        column = column + 1 == columns ? 0 : column + 1;
    }

private:
    static constexpr size_t kRowsPerBlock = 128;

    void BeginRow() {
        if (static_cast<size_t>(count) % kRowsPerBlock == 0) {
            blocks.emplace_back().reserve(kRowsPerBlock * columns);
        }
        ++count;
    }

    size_t columns;
    size_t column = 0; // of the next field
    int count = 0;
    std::vector<std::vector<Cell>> blocks;
};

struct ResultSet {
    std::vector<ResultColumn> columns;
    CellRows rows;
    std::vector<qint64> rowIds; // one a row; empty when rows can't be written
    QByteArray table;           // the one table's name; empty when rows can't be written
};

// Runs a SELECT statement of the catalogue to its end.
ResultSet ReadResult(const StoreConnection& connection, const QString& statement);

// The present state of one row as the result's columns show it; computed columns are Null. Empty
// when the row is gone.
std::vector<Cell> ReadRow(const StoreConnection& connection, const ResultSet& result, qint64 rowId);

// A name as the engine's SQL takes it.
QByteArray QuotedName(const QByteArray& name);
