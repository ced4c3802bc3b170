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

#include <QHash>
#include <QString>
#include <memory>
#include <stdexcept>
#include <variant>
#include <vector>

class StoreConnection;
class RowLock;

// Numbers of store errors that callers tell apart.
inline constexpr int kErrNoCurrentRow = 3021; // no row to read or write, or the row is gone
inline constexpr int kErrRowLocked = 3218;    // another user holds the row
inline constexpr int kErrNotOpen = 3704;      // the cursor has no result
inline constexpr int kErrNoColumn = 3265;     // no such column
inline constexpr int kErrStatement = 3075;    // the statement can't be run
inline constexpr int kErrNotUpdatable = 3027; // rows of this statement can't be written
inline constexpr int kErrBusy = 3009;         // the store stays locked beyond the time-out
inline constexpr int kErrDisk = 3026; // disk full, read-only store, or another write failure
inline constexpr int kErrOpen = 3024; // the store can't be opened or is no store

class StoreError : public std::runtime_error {
public:
    StoreError(int errorNumber, const QString& text)
        : std::runtime_error(text.toStdString()), number(errorNumber) {}
    int number;
    QString Text() const { return QString::fromUtf8(what()); }
};

// One field: Null, a whole number, a floating-point number or a text.
using Cell = std::variant<std::monostate, qint64, double, QString>;

bool IsNull(const Cell& cell);
QString CellText(const Cell& cell);   // Null is empty; numbers in plain decimal with "."
double CellNumber(const Cell& cell);  // Null is 0; a text by its leading number
qint64 CellInteger(const Cell& cell); // the same, cut to a whole number

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

    // Runs the statement; the first row becomes current. Pending edits are dropped.
    void Open();
    void Requery() { Open(); }
    void Close();
    bool IsOpen() const;

    // A cursor of its own on the same connection with a copy of this one's result, nothing pending.
    Recordset Clone() const;

    // Rows that the filter lets through (all of them without one).
    int RecordCount() const;

    // 1 to RecordCount; 0 when no row is current. Setting it beyond the rows leaves no row current.
    int AbsolutePosition() const;
    void SetAbsolutePosition(int position);
    void MoveFirst(); // no row current when there are none
    void MoveNext();  // past the last row: none current
    bool HasRow() const;

    // Conjunctions of equalities: "ProductId = 10001", "TableName = 'Products' AND ItemId =
    // '10001'". A number may be quoted; a quote inside a quoted value is doubled; texts are
    // compared without regard to case. Empty takes the filter away. The first row that passes
    // becomes current. Answered from a hash index that lives until the rows change. Anything else
    // is kErrStatement.
    void SetFilter(const QString& filter);

    // Appends an empty row (all Null) and makes it current.
    void AddNew();

    // Takes out the current row; afterwards no row is current until the next move.
    void Delete();

    // Writes whatever is pending in one transaction; without anything pending it does nothing. A
    // failure writes nothing and keeps everything pending.
    void Update();
    bool HasPending() const;

    int ColumnCount() const;
    int Column(QStringView name) const; // 0-based; kErrNoColumn if absent
    const QString& ColumnName(int column) const;

    // Fields of the current row (kErrNoCurrentRow without one). The reference lives until the next
    // change of the cursor.
    const Cell& Value(int column) const;
    const Cell& Value(QStringView name) const { return Value(Column(name)); }
    bool IsNull(QStringView name) const { return ::IsNull(Value(name)); }
    QString Text(QStringView name) const { return CellText(Value(name)); }
    double Number(QStringView name) const { return CellNumber(Value(name)); }
    qint64 Integer(QStringView name) const { return CellInteger(Value(name)); }
    QString Text(int column) const { return CellText(Value(column)); }

    // Pending until Update. On a pessimistic cursor the first write to a row takes its lock or
    // fails with kErrRowLocked; kErrNoCurrentRow when another user has deleted the row meanwhile.
    // Writing the value that is there already is still a write (it takes the lock) but gives
    // nothing to commit.
    void Set(QStringView name, const Cell& value);

    // Always true: a client-side copy is complete when Open returns.
    bool IsSettled() const { return true; }

private:
    struct Data;
    std::unique_ptr<Data> d;
};
