#include "tests/support/files.h"

#include <QFile>
#include <gtest/gtest.h>

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
