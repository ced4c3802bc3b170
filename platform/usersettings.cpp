#include "platform/usersettings.h"

#include "platform/fileops.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QStandardPaths>
#include <algorithm>
#include <cstdio>
#include <utility>
#include <vector>

namespace {

// A file beyond it holds no settings of ours.
constexpr qint64 kMaximumBytes = qint64{16} * 1024 * 1024;

constexpr QStringView kDamagedSuffix = u".dañado-";

// Control characters that may not stand in a line as they are, and their letters behind "\".
constexpr std::array<std::pair<char16_t, char16_t>, 5> kEscapes{
    {{u'\\', u'\\'}, {u'"', u'"'}, {u'\n', u'n'}, {u'\r', u'r'}, {u'\0', u'0'}}};

// One line of the file; a line that is no entry is kept as it stands. Not QSettings: it takes ","
// ";" and "\" of a value written by hand for its own marks, and drops comments when it writes.
struct Line {
    QString text;
    QString section; // under which it stands; empty above the first one
    QString key;     // empty unless it is an entry
    QString value;
};

struct SettingsFile {
    std::vector<Line> lines;
    bool damaged = false; // exists, but can't be read as settings
    bool changed = false;
};

// Files read or written since BeginSettings, by application.
QHash<QString, SettingsFile> openFiles;
int openBatches = 0;

bool SameName(const QString& left, const QString& right) {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

bool NeedsQuotes(const QString& value) {
    return value != value.trimmed() || value.startsWith(u'"') || value.contains(u'\n') ||
           value.contains(u'\r') || value.contains(QChar(u'\0'));
}

QString QuoteValue(const QString& value) {
    QString text;
    for (const QChar character : value) {
        const auto* escape = std::find_if(kEscapes.begin(), kEscapes.end(), [&](const auto& pair) {
            return pair.first == character;
        });
        text += escape == kEscapes.end() ? QString(character)
                                         : QStringLiteral("\\") + QChar(escape->second);
    }
    return u'"' + text + u'"';
}

// The content of quotes; the text as it stands if it isn't quoted throughout ("a" and "b").
QString UnquoteValue(const QString& text) {
    if (text.size() < 2 || !text.startsWith(u'"') || !text.endsWith(u'"')) {
        return text;
    }
    QString value;
    for (qsizetype at = 1; at < text.size() - 1; ++at) {
        if (text[at] == u'"') {
            return text;
        }
        if (text[at] == u'\\' && at + 1 == text.size() - 1) {
            return text; // the last quote is escaped
        }
        const auto* escape =
            text[at] == u'\\'
                ? std::find_if(kEscapes.begin(), kEscapes.end(),
                               [&](const auto& pair) { return pair.second == text[at + 1]; })
                : kEscapes.end();
        value += escape == kEscapes.end() ? text[at] : QChar(escape->first);
        at += escape == kEscapes.end() ? 0 : 1;
    }
    return value;
}

QString EntryText(const QString& key, const QString& value) {
    return key + u'=' + (NeedsQuotes(value) ? QuoteValue(value) : value);
}

bool IsComment(const QString& trimmedLine) {
    return trimmedLine.isEmpty() || trimmedLine.startsWith(u';') || trimmedLine.startsWith(u'#');
}

SettingsFile ParseFile(const QByteArray& bytes) {
    SettingsFile file;
    if (bytes.contains('\0') || !bytes.isValidUtf8()) {
        file.damaged = true;
        return file;
    }
    QString text = QString::fromUtf8(bytes);
    if (text.startsWith(QChar::ByteOrderMark)) {
        text.remove(0, 1);
    }
    if (text.endsWith(u'\n')) {
        text.chop(1);
    }
    QString section;
    bool hasContent = false;
    for (const QString& line : text.split(u'\n')) {
        const QString trimmed = line.trimmed();
        const qsizetype equals = trimmed.indexOf(u'=');
        Line entry{line, section, {}, {}};
        if (trimmed.startsWith(u'[') && trimmed.endsWith(u']')) {
            section = trimmed.mid(1, trimmed.size() - 2).trimmed();
            entry.section = section;
        } else if (!IsComment(trimmed) && equals > 0) {
            entry.key = trimmed.left(equals).trimmed();
            entry.value = UnquoteValue(trimmed.mid(equals + 1).trimmed());
        }
        hasContent = hasContent || !IsComment(trimmed);
        file.lines.push_back(entry);
    }
    if (hasContent && section.isEmpty()) {
        file.lines.clear();
        file.damaged = true;
    }
    return file;
}

SettingsFile ReadFile(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink()) {
        return {};
    }
    QFile source(path);
    if (!info.isFile() || info.size() > kMaximumBytes || !source.open(QIODevice::ReadOnly)) {
        SettingsFile file;
        file.damaged = info.exists();
        return file;
    }
    return ParseFile(source.readAll());
}

QString FreeNameForDamaged(const QString& path) {
    for (int number = 1;; ++number) {
        QString name = path + kDamagedSuffix.toString() + QString::number(number);
        if (!QFileInfo::exists(name)) {
            return name;
        }
    }
}

// A damaged file may hold passwords too.
void SetAside(const QString& path) {
    const QString name = FreeNameForDamaged(path);
    std::rename(QFile::encodeName(path).constData(), QFile::encodeName(name).constData());
    QFile::setPermissions(name, QFile::ReadOwner | QFile::WriteOwner);
}

void WriteFile(const QString& application, const SettingsFile& file) {
    const QString path = SettingsPath(application);
    QByteArray bytes;
    for (const Line& line : file.lines) {
        bytes += line.text.toUtf8() + '\n';
    }
    QDir().mkpath(QFileInfo(path).absolutePath());
    if (file.damaged) {
        SetAside(path);
    }
    ReplaceFile(path, bytes, FileReaders::UserOnly);
}

// The file of an application: the open batch's copy or a fresh reading.
SettingsFile& CurrentFile(const QString& application) {
    auto found = openFiles.find(application);
    if (found == openFiles.end()) {
        found = openFiles.insert(application, ReadFile(SettingsPath(application)));
    }
    return *found;
}

void SetValue(SettingsFile& file, const QString& section, const QString& key,
              const QString& value) {
    const Line entry{EntryText(key, value), section, key, value};
    auto place = file.lines.end();
    for (auto line = file.lines.begin(); line != file.lines.end(); ++line) {
        if (!SameName(line->section, section)) {
            continue;
        }
        if (SameName(line->key, key)) {
            *line = entry;
            return;
        }
        if (!line->text.trimmed().isEmpty()) {
            place = line + 1;
        }
    }
    if (place == file.lines.end() &&
        (file.lines.empty() || !SameName(file.lines.back().section, section))) {
        file.lines.push_back({u'[' + section + u']', section, {}, {}});
        place = file.lines.end();
    }
    file.lines.insert(place, entry);
}

} // namespace

QString GetSetting(const QString& application, const QString& section, const QString& key,
                   const QString& defaultValue) {
    BeginSettings();
    QString value = defaultValue;
    for (const Line& line : std::as_const(CurrentFile(application).lines)) {
        if (SameName(line.section, section) && SameName(line.key, key)) {
            value = line.value;
            break;
        }
    }
    CommitSettings();
    return value;
}

void SaveSetting(const QString& application, const QString& section, const QString& key,
                 const QString& value) {
    BeginSettings();
    SettingsFile& file = CurrentFile(application);
    SetValue(file, section, key, value);
    file.changed = true;
    CommitSettings();
}

void BeginSettings() {
    ++openBatches;
}

void CommitSettings() {
    if (--openBatches > 0) {
        return;
    }
    for (auto file = openFiles.cbegin(); file != openFiles.cend(); ++file) {
        if (file->changed) {
            WriteFile(file.key(), *file);
        }
    }
    openFiles.clear();
}

QString SettingsPath(const QString& application) {
    QString folder = application;
    folder.replace(u'/', u'-').remove(QChar(u'\0'));
    if (folder.isEmpty() || folder == u"." || folder == u"..") {
        folder = QStringLiteral("_");
    }
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' + folder +
           QStringLiteral("/settings.ini");
}
