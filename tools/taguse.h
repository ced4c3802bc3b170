// Which tags are replaced where. The program expands a product's page first, then goes once through
// every file in a fixed order of steps; a list enters a page at its own step, so that only what
// comes later is still replaced inside it. docs/designs.md has the same as a table.
#pragma once

#include "tools/design.h"

#include <QHash>
#include <QSet>
#include <QString>

enum class TagFate {
    Replaced,
    Stays,  // known, but not replaced in this section
    Unknown // of no program, design or delivered catalogue
};

class TagUse {
public:
    explicit TagUse(const Design& design);

    TagFate FateIn(const DesignSection& section, const QString& tag) const;

    // Whether %LID% becomes a language code in the section's text.
    bool KnowsLanguage(const DesignSection& section) const;

private:
    QSet<QString> productTexts;
    QSet<QString> ownTags;           // of words, and such as the manifest adds
    QHash<QString, int> sectionTags; // tag of a list, and the kind of its section
};

// Tags that are replaced in the name of the section's file, but %LID% and %FK%.
QStringList TagsOfFileName(const DesignSection& section);
