#include "app/updatefile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QUuid>
#include <cstdio>
#include <unistd.h>

namespace {

// Behind the final name stand a name that nobody else has, since several programs may share the
// folder, and this.
constexpr char kEnding[] = ".nuevo";

// A file that nobody has written to for so long is no download any more.
constexpr int kLeftOverDays = 1;

constexpr qint64 kPiece = 1 << 20; // bytes copied at once

QString NameBeside(const QString& path) {
    return path + '.' + QUuid::createUuid().toString(QUuid::WithoutBraces) + kEnding;
}

void RemoveLeftOvers(const QFileInfo& finalFile) {
    const QDateTime limit = QDateTime::currentDateTime().addDays(-kLeftOverDays);
    const QString pattern = finalFile.fileName() + ".*" + kEnding;
    for (const QFileInfo& file : finalFile.dir().entryInfoList({pattern}, QDir::Files)) {
        if (file.lastModified() < limit) {
            QFile::remove(file.filePath());
        }
    }
}

} // namespace

UpdateFile::~UpdateFile() {
    if (file.isOpen()) {
        file.remove();
    }
}

bool UpdateFile::Open() {
    RemoveLeftOvers(QFileInfo(finalPath));
    file.setFileName(NameBeside(finalPath));
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered);
}

bool UpdateFile::Append(const QByteArray& bytes) {
    size += bytes.size();
    return file.write(bytes) == bytes.size();
}

bool UpdateFile::KeepOldTail() {
    QFile old(finalPath);
    if (!old.exists() || old.size() <= size) {
        return true;
    }
    if (!old.open(QIODevice::ReadOnly) || !old.seek(size)) {
        return false;
    }
    while (size < old.size()) {
        const QByteArray tail = old.read(kPiece);
        if (tail.isEmpty() || !Append(tail)) {
            return false;
        }
    }
    return true;
}

bool UpdateFile::TakeFinalName() {
    // A file system without permissions does no harm.
    file.setPermissions(file.permissions() | QFile::ReadUser | QFile::ExeOwner | QFile::ExeUser);
    if (::fsync(file.handle()) != 0 || std::rename(QFile::encodeName(Path()).constData(),
                                                   QFile::encodeName(finalPath).constData()) != 0) {
        return false;
    }
    file.close();
    return true;
}
