// Text files of a design: UTF-8 sources, line by line, with the place of each line, until they
// become Windows-1252 with CR LF line ends.
#pragma once

#include "tools/packreport.h"

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

struct SourceLine {
    QString text; // without its line end
    SourcePlace place;
};

struct SourceText {
    std::vector<SourceLine> lines;
    bool closed = false; // the last line has a line end too
};

// Bytes of a file of the design; none, with an error at `wanted`, where it can't be read.
std::optional<QByteArray> ReadSourceBytes(const QString& folder, const QString& file,
                                          const SourcePlace& wanted, PackReport& report);

// The lines of a file, in which a line <!--#include other.html--> stands for those of the other
// file. Errors: a missing file, bytes that are no UTF-8, characters that Windows-1252 lacks, a NUL,
// files that include each other.
SourceText ReadSourceText(const QString& folder, const QString& file, const SourcePlace& wanted,
                          PackReport& report);

// The same for text that stands in the manifest.
SourceText TextFromManifest(const QString& text, const SourcePlace& place, PackReport& report);

// Lines with CR LF between them.
QString JoinLines(const SourceText& text);

// Whether Windows-1252 holds all of `text`; otherwise an error names the first character that it
// lacks.
bool CheckCharacters(const QString& text, const SourcePlace& place, PackReport& report);
