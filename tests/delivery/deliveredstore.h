// Delivered catalogues as the tests see them: each is opened as a copy, so that what is delivered
// gets no lock file beside it.
#pragma once

#include "engine/recordset.h"
#include "engine/storeengine.h"

#include <QDir>
#include <QTemporaryDir>

inline QStringList DeliveredCatalogues() {
    return QDir(CATALOGUES).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

class DeliveredStore {
public:
    explicit DeliveredStore(const QString& name) : source(QString(CATALOGUES "/") + name) {
        QFile::copy(source.filePath("Zandora.zdb"), copy.filePath("Zandora.zdb"));
        connection = StoreConnection::Open(copy.filePath("Zandora.zdb"));
    }

    Recordset Read(const QString& statement) const {
        Recordset rows;
        rows.SetConnection(connection);
        rows.SetSource(statement);
        rows.Open();
        return rows;
    }

    // The first cell of the first row as a number.
    qint64 Count(const QString& statement) const { return CellInteger(Read(statement).Value(0)); }

    const QDir& Folder() const { return source; }

private:
    QDir source;
    QTemporaryDir copy;
    std::shared_ptr<StoreConnection> connection;
};
