// The kinds of sections as a design maker knows them.
#pragma once

#include "site/template.h"

#include <QString>

enum class NameUse {
    None,     // the section's name is not used
    File,     // a file of the site
    Tag,      // the tag that the section's text takes the place of
    Languages // language codes
};

enum class BodyUse {
    None,    // rendered from the catalogue
    Text,    // converted text
    List,    // text of head, item and tail
    Picture, // JPEG, GIF or BMP
    File     // text or anything else, by the file's extension
};

struct DesignKind {
    int number;
    const char* word;
    NameUse name;
    BodyUse body;
    bool perLanguage; // one file of the site for each language
    bool repeatable;  // every section of the kind counts; otherwise one
};

// Null for an unknown number.
const DesignKind* FindDesignKind(int number);

// By its word or its number in decimal; null for anything else.
const DesignKind* FindDesignKind(const QString& wordOrNumber);
