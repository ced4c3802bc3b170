// What the packer has to say about a design, in Spanish, for its maker.
#pragma once

#include <QString>
#include <QStringList>

// A line of a source file; line 0 is the file as a whole.
struct SourcePlace {
    QString file; // relative to the design's folder
    int line = 0;
};

class PackReport {
public:
    // The site would be broken: nothing is packed.
    void Error(const SourcePlace& place, const QString& text);

    // It will probably surprise somebody.
    void Warning(const SourcePlace& place, const QString& text);

    bool HasErrors() const { return hasErrors; }

    // "file:line: error: text" or "file:line: aviso: text", in the order in which they came, each
    // once.
    const QStringList& Lines() const { return lines; }

private:
    void Append(const SourcePlace& place, const QString& kind, const QString& text);

    QStringList lines;
    bool hasErrors = false;
};
