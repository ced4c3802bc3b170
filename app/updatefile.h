// The installer of a new build on its way into the catalogue's folder: it comes into a file of its
// own beside the final one and takes the final name when it is whole.
#pragma once

#include <QFile>
#include <QString>

class UpdateFile {
public:
    explicit UpdateFile(const QString& newFinalPath) : finalPath(newFinalPath) {}
    ~UpdateFile(); // of an installer without its final name nothing stays
    UpdateFile(const UpdateFile&) = delete;
    UpdateFile& operator=(const UpdateFile&) = delete;

    // False where the folder can't be written. What a killed program has left there goes.
    bool Open();

    // False where the disk is full.
    bool Append(const QByteArray& bytes);

    qint64 Size() const { return size; } // bytes
    QString Path() const { return file.fileName(); }
    const QString& FinalPath() const { return finalPath; }

    // An older file of the final name that is longer keeps its tail: it goes behind the new bytes.
    // False where that can't be read or written.
    bool KeepOldTail();

    // With the bytes on disk and the permission to be run by its user. False leaves what was there.
    bool TakeFinalName();

private:
    QString finalPath;
    QFile file;
    qint64 size = 0;
};
