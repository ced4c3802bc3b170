// Files of tests, written and read whole.
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QTemporaryDir>
#include <vector>

// Replaces what the file held and returns `path`; the test fails where that can't be done.
QString WriteFile(const QString& path, const QByteArray& bytes);

// "(none)" where there is no such file.
QByteArray ReadFile(const QString& path);

// Bytes that are no printable ASCII as \xHH, and back.
QByteArray Escaped(const QByteArray& bytes);
QByteArray Unescaped(const QByteArray& text);

struct TextCase {
    QString name;            // with that of its file
    QList<QByteArray> lines; // behind the name's
};

// The cases in all .txt files of a folder, where a line "### NAME" begins each. The test fails
// where a file has none or there is no file.
std::vector<TextCase> ReadCases(const QString& folder);

// The lines of one case in a file, each as its columns between "|". Blanks around a column don't
// count, bytes are written as above. The test fails where there are none.
std::vector<QStringList> ReadTable(const QString& file, const QString& name);

// While it lives, the desktop's tools of these names ("xdg-open", "lp") are stand-ins: each notes
// its argument, keeps a copy of a file that it names, and ends with the code in EXIT_CODE.
class DesktopTools {
public:
    explicit DesktopTools(const QStringList& names);
    ~DesktopTools();

    QByteArray Said(const QString& name) const; // argument of the last call
    QByteArray Got(const QString& name) const;  // content of the file that it named

private:
    QTemporaryDir folder;
    QByteArray path;
};
