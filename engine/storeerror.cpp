#include "engine/storeerror.h"

#include <sqlite3.h>

namespace {

struct ErrorKind {
    int number;
    const char* text;
};

ErrorKind KindOf(int resultCode) {
    switch (resultCode & 0xFF) { // the low byte is the primary code
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {kErrBusy, "La base de datos está ocupada por otro usuario"};
    case SQLITE_FULL:
        return {kErrDisk, "No queda espacio en el disco de la base de datos"};
    case SQLITE_READONLY:
    case SQLITE_PERM:
        return {kErrDisk, "La base de datos es de sólo lectura"};
    case SQLITE_IOERR:
    case SQLITE_CANTOPEN:
        return {kErrDisk, "Error de disco en la base de datos"};
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return {kErrDisk, "El fichero de la base de datos está dañado"};
    case SQLITE_CONSTRAINT:
    case SQLITE_MISMATCH:
        return {kErrDuplicate, "La base de datos no admite el valor"};
    default:
        return {kErrStatement, "La consulta no puede ejecutarse"};
    }
}

} // namespace

StoreError EngineError(sqlite3* handle, int resultCode) {
    const ErrorKind kind = KindOf(resultCode);
    return {kind.number, QStringLiteral("%1 (%2)").arg(QString::fromUtf8(kind.text),
                                                       QString::fromUtf8(sqlite3_errmsg(handle)))};
}
