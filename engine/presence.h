// Which processes have a store open, told by the presence byte of its lock file (rowlock.h): each
// process with an open connection shares it, a process that needs the store alone takes it whole.
#pragma once

#include <QString>
#include <memory>

class LockFile;

// This process's presence at one store: one object for all of its connections.
class StorePresence {
public:
    // kErrOpen while another process has the store to itself. Where the lock file can't be opened
    // (a folder only for reading) the presence can't be seen by others.
    static std::shared_ptr<StorePresence> Enter(const QString& storePath);

    ~StorePresence();
    StorePresence(const StorePresence&) = delete;
    StorePresence& operator=(const StorePresence&) = delete;

    // Whether another process has the store open.
    bool AnyoneElse() const;

private:
    friend class StoreClaim;
    explicit StorePresence(std::unique_ptr<LockFile> opened);
    std::unique_ptr<LockFile> file;
};

// The store for this process alone while the object lives: other processes can't open it. It works
// with and without open connections of this process, so that the file may be replaced or moved
// under it.
class StoreClaim {
public:
    explicit StoreClaim(const QString& storePath);
    ~StoreClaim();
    StoreClaim(const StoreClaim&) = delete;
    StoreClaim& operator=(const StoreClaim&) = delete;

    // False when another process has the store open or its lock file can't be written.
    bool Held() const { return held; }

private:
    std::shared_ptr<StorePresence> presence;
    bool held = false;
};
