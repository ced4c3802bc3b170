// The table of page words: what a design maker writes as lines "tag | word | word" becomes the name
// and the body of a words section.
#pragma once

#include "tools/designtext.h"

#include <QString>

struct WordSection {
    QString languages; // codes joined by "|"
    QString body;      // tags joined by "#", then the words of each language after a "|"
};

// The first line has the language codes behind its first column. A line that begins with "=" has
// one word for all languages; empty lines and such as begin with "#" don't count. Errors: lines
// with another number of columns, columns with a "#", no tag, no language.
WordSection ReadWordTable(const SourceText& table, const SourcePlace& wanted, PackReport& report);
