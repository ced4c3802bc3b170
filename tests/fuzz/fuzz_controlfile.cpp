// The control file lies where anything can write to it: whatever its bytes, it is read, and what is
// recorded then is known.
#include "core/settings.h"
#include "publish/md5control.h"

#include <QFile>
#include <QTemporaryDir>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    static const QTemporaryDir folder;
    SetStoreFolder(folder.path() + "/");
    QFile file(folder.path() + "/md5control.txt");
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return 0;
    }
    file.write(reinterpret_cast<const char*>(data), qint64(size));
    file.close();
    ResetControlFile();
    const QByteArray hash(32, 'f');
    const QString names[] = {"index.html", "año.html", "nuevo.html"};
    for (const QString& name : names) {
        RecordFileSent(name, hash);
        if (!IsFileUnchanged(name, hash)) {
            std::abort();
        }
    }
    ResetControlFile();
    IsFileUnchanged(names[0], hash); // reads what has become of the file
    return 0;
}
