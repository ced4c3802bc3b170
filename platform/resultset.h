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

struct ResultSet {
    std::vector<ResultColumn> columns;
    std::vector<Cell> cells;    // row after row, every column of each
    std::vector<qint64> rowIds; // one a row; empty when rows can't be written
    QByteArray table;           // the one table's name; empty when rows can't be written

    int RowCount() const { return static_cast<int>(cells.size() / columns.size()); }
    Cell* Row(int row) { return &cells[static_cast<size_t>(row) * columns.size()]; }
    const Cell* Row(int row) const { return &cells[static_cast<size_t>(row) * columns.size()]; }
};

// Runs a SELECT statement of the catalogue to its end.
ResultSet ReadResult(const StoreConnection& connection, const QString& statement);

// The present state of one row as the result's columns show it; computed columns are Null. Empty
// when the row is gone.
std::vector<Cell> ReadRow(const StoreConnection& connection, const ResultSet& result, qint64 rowId);

// A name as the engine's SQL takes it.
QByteArray QuotedName(const QByteArray& name);
