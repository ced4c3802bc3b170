#include "engine/statement.h"

#include "engine/storeerror.h"

#include <sqlite3.h>

namespace {

void RunOrThrow(sqlite3* handle, const char* sql) {
    const int code = sqlite3_exec(handle, sql, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) {
        throw EngineError(handle, code);
    }
}

// Whether the engine finds anything to run in the text.
bool HoldsStatement(sqlite3* handle, const char* text) {
    sqlite3_stmt* statement = nullptr;
    const int code = sqlite3_prepare_v2(handle, text, -1, &statement, nullptr);
    sqlite3_finalize(statement);
    return code != SQLITE_OK || statement != nullptr;
}

} // namespace

void Statement::Finalizer::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

Statement::Statement(sqlite3* handle, const QByteArray& sql) : connection(handle) {
    sqlite3_stmt* statement = nullptr;
    const char* rest = nullptr;
    const int code = sqlite3_prepare_v2(handle, sql.constData(), static_cast<int>(sql.size()),
                                        &statement, &rest);
    prepared.reset(statement);
    if (code != SQLITE_OK) {
        throw EngineError(handle, code);
    }
    if (statement == nullptr || HoldsStatement(handle, rest)) {
        throw StoreError(kErrStatement,
                         QStringLiteral("La consulta debe tener exactamente una sentencia"));
    }
}

void Statement::Bind(int place, const Cell& value) {
    int code = SQLITE_OK;
    if (const auto* text = std::get_if<QString>(&value)) {
        const QByteArray utf8 = text->toUtf8();
        code = sqlite3_bind_text64(prepared.get(), place, utf8.constData(),
                                   static_cast<sqlite3_uint64>(utf8.size()), SQLITE_TRANSIENT,
                                   SQLITE_UTF8);
    } else if (const auto* whole = std::get_if<qint64>(&value)) {
        code = sqlite3_bind_int64(prepared.get(), place, *whole);
    } else if (const auto* real = std::get_if<double>(&value)) {
        code = sqlite3_bind_double(prepared.get(), place, *real);
    } else {
        code = sqlite3_bind_null(prepared.get(), place);
    }
    if (code != SQLITE_OK) {
        throw EngineError(connection, code);
    }
}

bool Statement::Step() {
    const int code = sqlite3_step(prepared.get());
    if (code == SQLITE_ROW) {
        return true;
    }
    if (code != SQLITE_DONE) {
        const StoreError error = EngineError(connection, code);
        sqlite3_reset(prepared.get());
        throw error;
    }
    return false;
}

void Statement::Reset() {
    sqlite3_reset(prepared.get()); // its code repeats the failure that Step has reported
}

Cell Statement::Column(int column) const {
    switch (sqlite3_column_type(prepared.get(), column)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return qint64{sqlite3_column_int64(prepared.get(), column)};
    case SQLITE_FLOAT:
        return sqlite3_column_double(prepared.get(), column);
    default:
        break;
    }
    const uchar* text = sqlite3_column_text(prepared.get(), column);
    return QString::fromUtf8(reinterpret_cast<const char*>(text),
                             sqlite3_column_bytes(prepared.get(), column));
}

Transaction::Transaction(sqlite3* handle)
    : connection(handle), outermost(sqlite3_get_autocommit(handle) != 0) {
    RunOrThrow(connection, outermost ? "BEGIN IMMEDIATE" : "SAVEPOINT inner");
    open = true;
}

Transaction::~Transaction() {
    // The engine has rolled back by itself after some failures (disk full).
    if (open && sqlite3_get_autocommit(connection) == 0) {
        const char* const undo = outermost ? "ROLLBACK" : "ROLLBACK TO inner; RELEASE inner";
        sqlite3_exec(connection, undo, nullptr, nullptr, nullptr);
    }
}

void Transaction::Commit() {
    RunOrThrow(connection, outermost ? "COMMIT" : "RELEASE inner");
    open = false;
}
