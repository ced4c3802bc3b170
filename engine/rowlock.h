// Locks on single bytes of the lock file beside a store, "<store>.lck", by which the copies of the
// program know of each other. They are open-file-description locks (fcntl F_OFD_SETLK): each holder
// has its own, also within one process, and they go with the process however it dies. The file
// itself stays empty and stays where it is.
//
// Which byte stands for what is known to all copies that share a store, not to be changed:
// byte 0 is the presence of a process, a row has (table number + 1) * 2^47 + its id, where the
// table number is the CRC-16/X-25 (ISO 3309) of the table's name in lower case, cut to 15 bits.
// Two tables of the same number only refuse each other's locks on the same id.
#pragma once

#include <QByteArray>
#include <QString>

// The lock file of a store, opened. Closing lets all of its locks go.
class LockFile {
public:
    // Made with the store's own permissions where it is missing. Not open when that can't be done.
    explicit LockFile(const QString& storePath);
    ~LockFile();
    LockFile(const LockFile&) = delete;
    LockFile& operator=(const LockFile&) = delete;

    bool IsOpen() const { return descriptor >= 0; }
    bool IsWritable() const { return writable; }
    int Descriptor() const { return descriptor; }

    // Takes or changes the lock on one byte at once or not at all: 0 or an errno (EAGAIN: another
    // holder is in the way). `type` is F_RDLCK, F_WRLCK or F_UNLCK.
    int SetLock(qint64 offset, short type) const;

    // Whether another holder stands in the way of a lock.
    bool WouldConflict(qint64 offset, short type) const;

private:
    int descriptor = -1;
    bool writable = false;
};

// One row held for writing, as long as the object lives.
class RowLock {
public:
    // kErrRowLocked when another holder has the row, with a text of its own when the lock file
    // can't be written.
    RowLock(const QString& storePath, const QByteArray& table, qint64 rowId);

private:
    LockFile file;
};
