// The complete result of one statement in memory, and the way back from its rows to the store.
#pragma once

#include "engine/cellrows.h"

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
