// What goes wrong with the store: one exception class, told apart by number. The texts are Spanish,
// since they may reach the user.
#pragma once

#include <QString>
#include <stdexcept>

struct sqlite3;

// Numbers of store errors that callers tell apart.
inline constexpr int kErrBusy = 3009;         // the store stays locked beyond the time-out
inline constexpr int kErrNoCurrentRow = 3021; // no row to read or write, or the row is gone
inline constexpr int kErrDuplicate = 3022;    // the table's rules refuse the value (key, NOT NULL)
inline constexpr int kErrOpen = 3024;         // the store can't be opened or is no store
inline constexpr int kErrDisk = 3026; // disk full, read-only or damaged store, other disk failures
inline constexpr int kErrNotUpdatable = 3027; // rows of this statement can't be written
inline constexpr int kErrStatement = 3075;    // the statement can't be run
inline constexpr int kErrRowLocked = 3218;    // another user holds the row
inline constexpr int kErrNoColumn = 3265;     // no such column
inline constexpr int kErrNotOpen = 3704;      // the cursor has no result

class StoreError : public std::runtime_error {
public:
    StoreError(int errorNumber, const QString& text)
        : std::runtime_error(text.toStdString()), number(errorNumber) {}
    int number;
    QString Text() const { return QString::fromUtf8(what()); }
};

// The error for a result code of the engine's last call on `handle`; its own message follows ours
// in brackets.
StoreError EngineError(sqlite3* handle, int resultCode);
