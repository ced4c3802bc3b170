// The cursor that the whole program speaks: a client-side, static copy of a statement's result,
// over SQLite. Rows of a single-table statement remember their row id, so that an edit goes back to
// exactly that row.
//
// Edits, added and deleted rows stay in the copy until Update, which writes all of them in one
// transaction. A pessimistic cursor takes a row lock at its first write to a row; the lock is seen
// by other processes and by other cursors of this one, and goes when the cursor gets another
// statement, is closed, or the process dies.
//
// Columns are named without regard to case. Every failure is a StoreError.
#pragma once

#include "engine/cell.h"
#include "engine/storeerror.h"

#include <QString>
#include <QStringView>
#include <initializer_list>
#include <memory>

class StoreConnection;

// One equality of a filter, by the column's place or name. `text` is what the field's text must be,
// without regard to case: a number in plain decimal, as CellText writes it. Null equals nothing.
// The views must outlive the call that the term is given to, no more.
struct ColumnEquals {
    ColumnEquals(int columnPlace, QStringView fieldText) : place(columnPlace), text(fieldText) {}
    ColumnEquals(QStringView columnName, QStringView fieldText)
        : name(columnName), text(fieldText) {}
    QStringView name;
    int place = -1; // -1: by name
    QStringView text;
};

class Recordset {
public:
    Recordset();
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    void SetConnection(std::shared_ptr<StoreConnection> connection);
    std::shared_ptr<StoreConnection> Connection() const;
    void SetPessimistic(bool pessimistic);

    // A new statement drops the result, the pending edits and the row lock. Empty at start.
    void SetSource(const QString& statement);
    const QString& Source() const;

    // Runs the statement; the first row becomes current. The filter, pending edits and row locks
    // are dropped. A failure leaves everything as it was.
    void Open();
    void Requery() { Open(); }
    void Close();
    bool IsOpen() const;

    // A cursor of its own on the same connection with a copy of this one's result as it was read,
    // without filter and locks, nothing pending, not pessimistic; its first row is current.
    Recordset Clone() const;

    // Rows that the filter lets through (all of them without one); 0 when it is not open.
    int RecordCount() const;

    // 1 to RecordCount; 0 when no row is current. Setting it beyond the rows leaves no row current.
    int AbsolutePosition() const;
    void SetAbsolutePosition(int position);
    void MoveFirst(); // no row current when there are none
    void MoveNext();  // past the last row: none current
    bool HasRow() const;

    // Lets through the rows in which every term holds; the first of them becomes current. Answered
    // from a hash index over the terms' columns that lives until the rows change: thousands of
    // filters on the same columns cost one look-up each. The rows let through stay the same until
    // the next filter, whatever is written to them, and an added row joins them. kErrNoColumn for
    // a column that is absent.
    void SetFilter(std::initializer_list<ColumnEquals> terms);
    void ClearFilter(); // lets all rows through; so does SetFilter without terms

    // Appends an empty row (all Null) and makes it current.
    void AddNew();

    // Takes out the current row; afterwards no row is current until the next move, and MoveNext
    // goes to the row that followed. A pessimistic cursor takes the row's lock as Set does.
    void Delete();

    // Writes whatever is pending in one transaction; without anything pending it does nothing. Of
    // an edited row only the columns that differ are written, of an added row those that are not
    // Null: it then holds the store's defaults for the others. On a pessimistic cursor an added row
    // is locked from here on. A failure writes nothing and keeps everything pending:
    // kErrNoCurrentRow when another user has deleted an edited row, kErrBusy, kErrDisk,
    // kErrDuplicate, kErrRowLocked.
    void Update();
    bool HasPending() const;

    int ColumnCount() const;
    int Column(QStringView name) const; // 0-based; kErrNoColumn if absent

    // Fields of the current row (kErrNoCurrentRow without one).
    Cell Value(int column) const;
    Cell Value(QStringView name) const { return Value(Column(name)); }
    bool IsNull(QStringView name) const { return ::IsNull(Value(name)); }
    QString Text(QStringView name) const { return CellText(Value(name)); }
    double Number(QStringView name) const { return CellNumber(Value(name)); }
    qint64 Integer(QStringView name) const { return CellInteger(Value(name)); }
    QString Text(int column) const { return CellText(Value(column)); }

    // Pending until Update; the value is kept as the column keeps it (a text that is a number
    // becomes one in a number column). On a pessimistic cursor the first write to a row takes its
    // lock or fails with kErrRowLocked, and the row is read anew; kErrNoCurrentRow when another
    // user has deleted it meanwhile. kErrNotUpdatable for a column that is none of a single table.
    // Writing the value that is there already is still a write (it takes the lock) but gives
    // nothing to commit.
    void Set(QStringView name, const Cell& value);

    // Always true: a client-side copy is complete when Open returns.
    bool IsSettled() const { return true; }

private:
    struct Data;
    std::unique_ptr<Data> d;
};
