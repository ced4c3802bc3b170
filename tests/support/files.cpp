#include "tests/support/files.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace {

std::vector<TextCase> CasesOf(const QString& file) {
    constexpr char kName[] = "### ";
    std::vector<TextCase> cases;
    for (const QByteArray& line : ReadFile(file).chopped(1).split('\n')) {
        if (line.startsWith(kName)) {
            cases.push_back({QString::fromUtf8(line.mid(int(strlen(kName)))), {}});
        } else if (!cases.empty()) {
            cases.back().lines += line;
        }
    }
    EXPECT_FALSE(cases.empty()) << file.toStdString();
    return cases;
}

} // namespace

QString WriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size())
        << path.toStdString();
    return path;
}

QByteArray ReadFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

QByteArray Escaped(const QByteArray& bytes) {
    QByteArray text;
    for (const char byte : bytes) {
        const bool printable = byte >= ' ' && byte <= '~';
        text += printable ? QByteArray(1, byte) : "\\x" + QByteArray(1, byte).toHex().toUpper();
    }
    return text;
}

QByteArray Unescaped(const QByteArray& text) {
    QByteArray bytes;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool escape = text.mid(at, 2) == "\\x";
        bytes += escape ? QByteArray::fromHex(text.mid(at + 2, 2)) : text.mid(at, 1);
        at += escape ? 3 : 0;
    }
    return bytes;
}

std::vector<TextCase> ReadCases(const QString& folder) {
    std::vector<TextCase> cases;
    for (const QString& file : QDir(folder).entryList({"*.txt"})) {
        for (TextCase& found : CasesOf(folder + '/' + file)) {
            found.name = file + ": " + found.name;
            cases.push_back(std::move(found));
        }
    }
    EXPECT_FALSE(cases.empty()) << folder.toStdString();
    return cases;
}

std::vector<QStringList> ReadTable(const QString& file, const QString& name) {
    std::vector<QStringList> rows;
    for (const TextCase& table : CasesOf(file)) {
        for (const QByteArray& line : table.name == name ? table.lines : QList<QByteArray>()) {
            QStringList& columns = rows.emplace_back();
            for (const QByteArray& column : line.split('|')) {
                columns += QString::fromUtf8(Unescaped(column.trimmed()));
            }
        }
    }
    EXPECT_FALSE(rows.empty()) << name.toStdString();
    return rows;
}

DesktopTools::DesktopTools(const QStringList& names) : path(qgetenv("PATH")) {
    constexpr char kTool[] = "#!/bin/sh\n"
                             "printf '%s' \"$1\" > \"$0.said\"\n"
                             "if [ -f \"$1\" ]; then cp \"$1\" \"$0.got\"; fi\n"
                             "exit ${EXIT_CODE:-0}\n";
    for (const QString& name : names) {
        QFile::setPermissions(WriteFile(folder.filePath(name), kTool),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    qputenv("PATH", folder.path().toUtf8() + ':' + path);
}

DesktopTools::~DesktopTools() {
    qputenv("PATH", path);
    qunsetenv("EXIT_CODE");
}

QByteArray DesktopTools::Said(const QString& name) const {
    return ReadFile(folder.filePath(name + ".said"));
}

QByteArray DesktopTools::Got(const QString& name) const {
    return ReadFile(folder.filePath(name + ".got"));
}
