#include "engine/resultset.h"

#include "engine/sqltext.h"
#include "engine/statement.h"
#include "engine/storeengine.h"

#include <sqlite3.h>

namespace {

// The statement with row ids where its shape and its table (no view, no table without row ids)
// allow, otherwise as it is.
Statement Prepare(sqlite3* handle, const StatementText& text, bool& hasRowId) {
    if (!text.sqlWithRowId.isEmpty()) {
        try {
            Statement withRowId(handle, text.sqlWithRowId);
            hasRowId = true;
            return withRowId;
        } catch (const StoreError&) {
            // What is wrong with the statement itself is told by preparing it alone.
        }
    }
    hasRowId = false;
    return Statement(handle, text.sql);
}

std::vector<ResultColumn> DescribeColumns(sqlite3_stmt* statement, int count) {
    std::vector<ResultColumn> columns;
    columns.reserve(count);
    for (int column = 0; column < count; ++column) {
        columns.push_back({QString::fromUtf8(sqlite3_column_name(statement, column)),
                           QByteArray(sqlite3_column_origin_name(statement, column)),
                           AffinityOf(sqlite3_column_decltype(statement, column))});
    }
    return columns;
}

void ReadField(Statement& statement, int column, CellRows& rows) {
    const int row = rows.Count() - 1;
    sqlite3_stmt* handle = statement.Handle();
    switch (sqlite3_column_type(handle, column)) {
    case SQLITE_NULL:
        break;
    case SQLITE_TEXT: {
        const uchar* text = sqlite3_column_text(handle, column);
        rows.SetText(row, column, reinterpret_cast<const char*>(text),
                     sqlite3_column_bytes(handle, column));
        break;
    }
    default:
        rows.Set(row, column, statement.Column(column));
    }
}

void ReadRows(Statement& statement, ResultSet& result, bool hasRowId) {
    const int columns = result.rows.ColumnCount();
    while (statement.Step()) {
        result.rows.AddRow();
        for (int column = 0; column < columns; ++column) {
            ReadField(statement, column, result.rows);
        }
        if (hasRowId) {
            result.rowIds.push_back(sqlite3_column_int64(statement.Handle(), columns));
        }
    }
}

} // namespace

ResultSet ReadResult(const StoreConnection& connection, const QString& text) {
    bool hasRowId = false;
    Statement statement = Prepare(connection.Handle(), TranslateStatement(text), hasRowId);
    sqlite3_stmt* handle = statement.Handle();
    if (sqlite3_stmt_readonly(handle) == 0 || sqlite3_column_count(handle) == 0) {
        throw StoreError(kErrStatement, QStringLiteral("La consulta no devuelve registros"));
    }
    ResultSet result;
    const int columns = sqlite3_column_count(handle) - (hasRowId ? 1 : 0);
    result.columns = DescribeColumns(handle, columns);
    result.rows = CellRows(result.columns.size());
    if (hasRowId) { // which a view answers with Null, belonging to no table
        result.table = sqlite3_column_table_name(handle, columns);
        hasRowId = !result.table.isEmpty();
    }
    ReadRows(statement, result, hasRowId);
    return result;
}

std::vector<Cell> ReadRow(const StoreConnection& connection, const ResultSet& result,
                          qint64 rowId) {
    QByteArray list;
    for (const ResultColumn& column : result.columns) {
        list += list.isEmpty() ? "" : ", ";
        list += column.origin.isEmpty() ? QByteArrayLiteral("NULL") : QuotedName(column.origin);
    }
    Statement statement(connection.Handle(), "SELECT " + list + " FROM " +
                                                 QuotedName(result.table) + " WHERE _rowid_=?");
    statement.Bind(1, rowId);
    std::vector<Cell> row;
    if (statement.Step()) {
        for (int column = 0; column < static_cast<int>(result.columns.size()); ++column) {
            row.push_back(statement.Column(column));
        }
    }
    return row;
}

QByteArray QuotedName(const QByteArray& name) {
    return '"' + QByteArray(name).replace('"', "\"\"") + '"';
}
