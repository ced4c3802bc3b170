// A prepared statement of the engine. Every failure is a StoreError.
#pragma once

#include "engine/cell.h"

#include <QByteArray>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

class Statement {
public:
    // Prepares exactly one statement (UTF-8); more text behind it is kErrStatement.
    Statement(sqlite3* handle, const QByteArray& sql);

    // Places are counted from 1.
    void Bind(int place, const Cell& value);

    // True with a row, false at the end; after the end the statement can run again.
    bool Step();

    // Ready to run again, with other values.
    void Reset();

    // A field of the present row; columns are counted from 0. Bytes that are no text count as
    // UTF-8.
    Cell Column(int column) const;

    sqlite3_stmt* Handle() const { return prepared.get(); }

private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };
    sqlite3* connection;
    std::unique_ptr<sqlite3_stmt, Finalizer> prepared;
};

// Everything between the constructor and Commit is written as a whole or, without Commit, not at
// all. The store is locked for writing from the start (kErrBusy). One that begins within another is
// part of it: its rows stand or fall with the outer one.
class Transaction {
public:
    explicit Transaction(sqlite3* handle);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void Commit();

private:
    sqlite3* connection;
    bool outermost = false;
    bool open = false;
};
