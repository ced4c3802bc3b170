// A small store for tests of the cursor layer, and a second process that works on it.
#pragma once

#include "platform/recordset.h"
#include "platform/storeengine.h"

#include <QTemporaryDir>
#include <functional>
#include <string>

// A store of two tables in a folder of its own.
class StoreFixture {
public:
    StoreFixture();

    QString Path() const { return folder.filePath("Prueba.zdb"); }
    QString Folder() const { return folder.path(); }
    std::shared_ptr<StoreConnection> Connection() const { return connection; }

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

// A process of its own that runs `body` at once and ends with it; killed at the latest with the
// object. It must be started while this process has no store open. Both sides talk in single
// characters.
class OtherProcess {
public:
    explicit OtherProcess(const std::function<void(OtherProcess&)>& body);
    ~OtherProcess();
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    void Say(char word) const;
    // What the other side says next; 0 when it has ended or stays silent for ten seconds.
    char Hear() const;
    // Ends it as a crash would; returns when it is gone.
    void Kill();

private:
    int process = 0;
    int channel = -1;
};
