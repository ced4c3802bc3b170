// Language-tagged cells: all languages of a caption or of a list of choices in one text.
//
// Entries are separated by "|", an entry's alternatives by "#", an alternative is a two-letter
// language code followed at once by the text: "ESRojo#ENRed|ESVerde#ENGreen".
#pragma once

#include <QString>

// Entry number `index` (from 0) in `language`; without an alternative in that language the entry's
// last one, so that a single alternative serves every language. Empty when there is no such entry.
QString TaggedText(const QString& text, const QString& language, int index);
