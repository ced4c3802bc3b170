#include "publish/md5control.h"

#include "core/settings.h"
#include "site/transforms.h"
#include "text/ansi.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <set>
#include <vector>

namespace {

constexpr char kControlFile[] = "md5control.txt";
constexpr int kNameSize = 60; // stored, not to be changed
constexpr int kHashSize = 32; // stored
constexpr int kRecordSize = kNameSize + kHashSize + 2;

struct ControlEntry {
    QByteArray name; // without blanks around it, cut at kNameSize
    QByteArray hash;
};

// The table in memory, indexed from 0. Indices and record numbers of the file can part, as
// ControlCount tells.
std::vector<ControlEntry> entries;

// Places of each name in the table, so that no look-up walks it.
QHash<QByteArray, std::set<int>> places;

// After a load the number of records; then the index of the last entry written. Both at once, on
// purpose: an update moves it back, and the next new entry drops what lies above it from memory.
int controlCount = 0;
bool controlLoaded = false;

QByteArray Field(const QByteArray& text, int size) {
    return text.left(size).leftJustified(size, ' ');
}

void SetEntry(int index, ControlEntry entry) {
    places[entries[index].name].erase(index);
    places[entry.name].insert(index);
    entries[index] = std::move(entry);
}

// Entries beyond the new size are forgotten; new ones are blank.
void ResizeTable(int size) {
    for (int index = size; index < static_cast<int>(entries.size()); ++index) {
        places[entries[index].name].erase(index);
    }
    const int before = static_cast<int>(entries.size());
    entries.resize(size);
    for (int index = before; index < size; ++index) {
        places[QByteArray()].insert(index);
    }
}

[[noreturn]] void ThrowFileError(const QFile& file) {
    throw std::runtime_error(QStringLiteral("No se puede abrir el fichero de control %1: %2")
                                 .arg(file.fileName(), file.errorString())
                                 .toStdString());
}

void LoadControlFile() {
    if (controlLoaded) {
        return;
    }
    QFile file(DBpath + kControlFile);
    if (!file.open(QIODevice::ReadWrite)) {
        ThrowFileError(file);
    }
    ResizeTable(1);
    controlCount = 0;
    while (true) {
        const QByteArray record = file.read(kRecordSize);
        if (record.size() < kRecordSize) {
            break; // a record that was cut short doesn't count
        }
        ResizeTable(std::max(controlCount + 1, 1));
        SetEntry(controlCount,
                 {TrimBlanks(record.left(kNameSize)), record.mid(kNameSize, kHashSize)});
        ++controlCount;
    }
    controlLoaded = true;
}

// Index of the first entry of that name, or -1.
int FirstEntry(const QByteArray& name) {
    const auto found = places.constFind(name);
    return found == places.constEnd() || found->empty() ? -1 : *found->begin();
}

void WriteRecord(qint64 position, const QByteArray& name, const QByteArray& hash) {
    QFile file(DBpath + kControlFile);
    const QByteArray record = Field(name, kNameSize) + Field(hash, kHashSize) + "\r\n";
    if (!file.open(QIODevice::ReadWrite) || !file.seek(position) ||
        file.write(record) != record.size() || !file.flush()) {
        ThrowFileError(file);
    }
}

} // namespace

bool IsFileUnchanged(const QString& fileName, const QByteArray& hash) {
    LoadControlFile();
    const auto found = places.constFind(TrimBlanks(ToAnsi(fileName)));
    return found != places.constEnd() &&
           std::any_of(found->begin(), found->end(),
                       [&hash](int index) { return entries[index].hash == hash; });
}

void RecordFileSent(const QString& fileName, const QByteArray& hash) {
    LoadControlFile();
    const QByteArray name = TrimBlanks(ToAnsi(fileName));
    const int known = FirstEntry(name);
    qint64 position = 0;
    if (known >= 0) {
        position = qint64{kRecordSize} * known;
        controlCount = known;
    } else {
        ++controlCount;
        ResizeTable(controlCount + 1);
        position = QFileInfo(DBpath + kControlFile).size();
    }
    SetEntry(controlCount, {TrimBlanks(name.left(kNameSize)), hash.left(kHashSize)});
    WriteRecord(position, name, hash);
}

void ResetControlFile() {
    entries.clear();
    places.clear();
    controlCount = 0;
    controlLoaded = false;
}
