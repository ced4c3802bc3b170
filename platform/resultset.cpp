#include "platform/resultset.h"

#include "platform/sqltext.h"
#include "platform/statement.h"
#include "platform/storeengine.h"

#include <array>
#include <cstring>
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

// Short texts that come again in the same column (codes, table names, zones) share one copy, which
// saves memory and time in a result of many rows. A column where they don't is given up soon.
class SharedTexts {
public:
    QString Take(const char* text, int size) {
        if (++taken <= kFewTexts || size > kLongest || missed > found + kTries) {
            return QString::fromUtf8(text, size);
        }
        places.resize(kPlaces);
        Place& place = places[PlaceOf(text, size)];
        if (place.size == size && std::memcmp(place.bytes.data(), text, size) == 0) {
            ++found;
            return place.shared;
        }
        ++missed;
        place.size = size;
        std::memcpy(place.bytes.data(), text, size);
        place.shared = QString::fromUtf8(text, size);
        return place.shared;
    }

private:
    static constexpr int kFewTexts = 32; // no sharing among so few
    static constexpr int kLongest = 24;  // bytes
    static constexpr int kTries = 100;
    static constexpr size_t kPlaces = 64;

    struct Place {
        int size = -1; // none kept
        std::array<char, kLongest> bytes = {};
        QString shared;
    };

    static size_t PlaceOf(const char* text, int size) {
        quint32 hash = 0;
        for (int byte = 0; byte < size; ++byte) {
            hash = hash * 31 + static_cast<uchar>(text[byte]);
        }
        return hash % kPlaces;
    }

    std::vector<Place> places;
    int taken = 0;
    int found = 0;
    int missed = 0;
};

void ReadRows(Statement& statement, ResultSet& result, bool hasRowId) {
    const int columns = static_cast<int>(result.columns.size());
    std::vector<SharedTexts> texts(result.columns.size());
    while (statement.Step()) {
        for (int column = 0; column < columns; ++column) {
            sqlite3_stmt* row = statement.Handle();
            if (sqlite3_column_type(row, column) == SQLITE_TEXT) {
                const uchar* text = sqlite3_column_text(row, column);
                result.rows.Append(texts[column].Take(reinterpret_cast<const char*>(text),
                                                      sqlite3_column_bytes(row, column)));
            } else {
                result.rows.Append(statement.Column(column));
            }
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
