#include "site/outputs.h"

#include "core/settings.h"
#include "platform/events.h"
#include "site/transforms.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <filesystem>
#include <utility>

namespace {

// What the catalogue's own files have behind the store's name.
constexpr const char* kStoreSuffixes[] = {"", "-journal", ".lck", ".bak", ".tmp"};

// Whether both names lead to one existing file, by whatever links.
bool IsSameFile(const QString& one, const QString& other) {
    std::error_code missing;
    return std::filesystem::equivalent(std::filesystem::path(one.toStdU16String()),
                                       std::filesystem::path(other.toStdU16String()), missing);
}

// A file that the user marked read-only is to stay as it is; removing it would only need the
// folder to be writable.
bool IsReadOnly(const QFileInfo& file) {
    return !file.isWritable() || !file.permission(QFile::WriteOwner);
}

bool RemoveExisting(const QString& path) {
    const QFileInfo file(path);
    if (!file.exists() && !file.isSymLink()) {
        return true;
    }
    return (file.isSymLink() || !IsReadOnly(file)) && QFile::remove(path);
}

bool WriteOutput(const QString& path, const QByteArray& data) {
    QFile file(path);
    constexpr auto kNewFile = QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered;
    return (file.open(kNewFile) || (RemoveExisting(path) && file.open(kNewFile))) &&
           file.write(data) == data.size();
}

// Whether `name` is that of a catalogue's own file; without regard to case, since the folder may
// lie on a volume that knows none.
bool IsCatalogueName(const QString& name) {
    return std::any_of(std::begin(kStoreSuffixes), std::end(kStoreSuffixes),
                       [&name](const char* suffix) {
                           return name.compare(DBname + suffix, Qt::CaseInsensitive) == 0;
                       });
}

// `besideStore`: the folder is the store's.
bool SaveOutput(const QDir& folder, bool besideStore, const OutputFile& output) {
    const QString name = TrimBlanks(output.Name);
    if (name.isEmpty()) {
        return true;
    }
    return IsPlainFileName(name) && !(besideStore && IsCatalogueName(name)) &&
           WriteOutput(folder.filePath(name), output.Data);
}

constexpr qsizetype kDraftBlock = qsizetype{1024} * 1024; // bytes

// The block that drafts are being added to.
struct DraftBlock {
    std::shared_ptr<char[]> bytes;
    qsizetype used = kDraftBlock;
};
DraftBlock drafts;

} // namespace

std::vector<OutputFile> OutputFiles;

void AddOutputFile(OutputFile file) {
    DoEvents();
    // A first file without a name gives its place away: it is the empty element of an empty list.
    if (!OutputFiles.empty() && OutputFiles.front().Name.isEmpty()) {
        OutputFiles.front() = std::move(file);
    } else {
        OutputFiles.push_back(std::move(file));
    }
}

void AddDraft(const QString& name, const QString& lang, const QByteArray& data) {
    const qsizetype size = data.size();
    if (size > kDraftBlock) {
        AddOutputFile({name, lang, {}, false, data});
        return;
    }
    if (drafts.used + size > kDraftBlock) {
        drafts = {std::make_shared_for_overwrite<char[]>(kDraftBlock), 0};
    }
    char* const place = drafts.bytes.get() + drafts.used;
    std::copy(data.cbegin(), data.cend(), place);
    drafts.used += size;
    AddOutputFile({name, lang, {}, false, QByteArray::fromRawData(place, size), drafts.bytes});
}

OutputFile TakeOutputFile(int place) {
    return std::exchange(OutputFiles.at(place), {});
}

void PutOutputFile(int place, OutputFile file) {
    OutputFiles.at(place) = std::move(file);
}

void MarkForSending(std::vector<OutputFile>& files, bool (*differs)(const OutputFile& file)) {
    for (OutputFile& file : files) {
        file.SendNow = differs(file);
    }
}

void ClearOutputFiles() {
    OutputFiles.clear();
    drafts = {};
}

bool IsPlainFileName(const QString& name) {
    return !name.isEmpty() && name != "." && name != ".." && !name.contains('/') &&
           !name.contains('\\') && !name.contains(QChar(u'\0'));
}

bool IsCatalogueFile(const QString& path) {
    const QFileInfo file(path);
    if (IsCatalogueName(file.fileName()) && IsSameFile(file.path(), DBpath)) {
        return true;
    }
    return std::any_of(
        std::begin(kStoreSuffixes), std::end(kStoreSuffixes),
        [&path](const char* suffix) { return IsSameFile(path, DBpath + DBname + suffix); });
}

bool SaveOutputFiles(const QString& folder) {
    const QDir target(folder);
    const bool besideStore = IsSameFile(folder, DBpath);
    for (const OutputFile& output : OutputFiles) {
        DoEvents();
        if ((!QFileInfo::exists(folder) && !QDir().mkdir(folder)) ||
            !SaveOutput(target, besideStore, output)) {
            return false;
        }
    }
    return true;
}
