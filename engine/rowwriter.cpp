#include "engine/rowwriter.h"

#include "engine/statement.h"
#include "engine/storeengine.h"

#include <optional>

namespace {

class RowWriter {
public:
    RowWriter(const StoreConnection& store, const ResultSet& resultSet, bool lock)
        : connection(store), result(resultSet), table(QuotedName(resultSet.table)),
          lockAdded(lock) {}

    void Write(int row, const PendingRow& pending) {
        switch (pending.kind) {
        case PendingKind::Deleted:
            Delete(row);
            break;
        case PendingKind::Added:
            Insert(row, ChangedColumns(row, pending.original));
            break;
        case PendingKind::Edited:
            Change(row, ChangedColumns(row, pending.original));
            break;
        }
    }

    // Nothing was begun where nothing differed.
    std::vector<WrittenRow> Commit() {
        if (transaction) {
            transaction->Commit();
        }
        return std::move(written);
    }

private:
    std::vector<int> ChangedColumns(int row, const std::vector<Cell>& original) const {
        std::vector<int> changed;
        for (int column = 0; column < static_cast<int>(original.size()); ++column) {
            if (result.rows.At(row, column) != original[column]) {
                changed.push_back(column);
            }
        }
        return changed;
    }

    // Neighbouring rows mostly have the same columns changed: their statement is prepared once.
    Statement& Prepared(const QByteArray& sql) {
        if (!transaction) {
            transaction.emplace(connection.Handle());
        }
        if (!statement || sql != statementSql) {
            statement.reset();
            statement.emplace(connection.Handle(), sql);
            statementSql = sql;
        }
        statement->Reset();
        return *statement;
    }

    QByteArray NameOf(int column) const { return QuotedName(result.columns[column].origin); }

    void Delete(int row) {
        Statement& run = Prepared("DELETE FROM " + table + " WHERE _rowid_=?");
        run.Bind(1, result.rowIds[row]);
        run.Step();
    }

    void Change(int row, const std::vector<int>& changed) {
        if (changed.empty()) {
            return;
        }
        QByteArray sql = "UPDATE " + table + " SET ";
        for (const int column : changed) {
            sql += NameOf(column) + "=?,";
        }
        sql.chop(1);
        // The id changes with its column where the table's key is its id.
        Statement& run = Prepared(sql + " WHERE _rowid_=? RETURNING _rowid_");
        int place = 0;
        for (const int column : changed) {
            run.Bind(++place, result.rows.At(row, column));
        }
        run.Bind(++place, result.rowIds[row]);
        if (!run.Step()) {
            throw StoreError(kErrNoCurrentRow,
                             QStringLiteral("Otro usuario ha eliminado el registro"));
        }
        written.push_back({row, CellInteger(run.Column(0)), {}, nullptr});
        run.Reset();
    }

    void Insert(int row, const std::vector<int>& changed) {
        QByteArray names;
        QByteArray marks;
        for (const int column : changed) {
            names += NameOf(column) + ",";
            marks += "?,";
        }
        names.chop(1);
        marks.chop(1);
        const QByteArray values = changed.empty() ? QByteArray(" DEFAULT VALUES")
                                                  : "(" + names + ") VALUES(" + marks + ")";
        Statement& run = Prepared("INSERT INTO " + table + values + " RETURNING _rowid_");
        int place = 0;
        for (const int column : changed) {
            run.Bind(++place, result.rows.At(row, column));
        }
        run.Step();
        WrittenRow added{row, CellInteger(run.Column(0)), {}, nullptr};
        run.Reset();
        added.cells = ReadRow(connection, result, added.rowId);
        if (lockAdded) {
            added.lock = std::make_unique<RowLock>(connection.Path(), result.table, added.rowId);
        }
        written.push_back(std::move(added));
    }

    const StoreConnection& connection;
    const ResultSet& result;
    const QByteArray table;
    const bool lockAdded;
    std::optional<Statement> statement;
    QByteArray statementSql;
    std::optional<Transaction> transaction;
    std::vector<WrittenRow> written;
};

} // namespace

std::vector<WrittenRow> WritePendingRows(const StoreConnection& connection, const ResultSet& result,
                                         const PendingRows& pending, bool lockAdded) {
    RowWriter writer(connection, result, lockAdded);
    for (const auto& [row, change] : pending) {
        writer.Write(row, change);
    }
    return writer.Commit();
}
