// A small store for tests of the cursor layer.
#pragma once

#include "engine/recordset.h"
#include "engine/storeengine.h"
#include "tests/support/otherprocess.h"

#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>
#include <string>

// A store of two tables in a folder of its own.
class StoreFixture : public testing::Test {
protected:
    StoreFixture();

    QString Path() const { return folder.filePath("Prueba.zdb"); }
    QString Folder() const { return folder.path(); }
    std::shared_ptr<StoreConnection> Connection() const { return connection; }
    void Execute(const QString& statements) const { connection->Execute(statements); }

    // From here on this process has the store closed; for what a second process does first.
    void Leave() { connection.reset(); }
    void Enter() { connection = StoreConnection::Open(Path()); }

    Recordset Cursor(const QString& statement, bool pessimistic = false) const;

    // Every field of a result, rows separated by "/", fields by ",", a Null as "-".
    std::string Rows(const QString& statement) const;

private:
    QTemporaryDir folder;
    std::shared_ptr<StoreConnection> connection;
};

// The number of the StoreError that `action` throws; 0 without one.
int ErrorOf(const std::function<void()>& action);
