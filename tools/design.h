// A design as it will be packed: header and sections with their finished bodies, beside the lines
// of source that they were made of.
#pragma once

#include "tools/designkinds.h"
#include "tools/designmanifest.h"
#include "tools/designtext.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

struct DesignSection {
    const DesignKind* kind = nullptr; // never null in a Design
    QString name;
    QString params;
    QByteArray body;
    SourceText text; // lines of a body that is text; empty for others
    ManifestPart source;

    bool IsText() const { return !text.lines.empty(); }

    // The file is written for each language, as far as its kind and extension say.
    bool IsPerLanguage() const;

    // The file's extension is one of those whose tags and %LID% the program replaces.
    bool IsFinished() const;
};

struct Design {
    QString name;
    QString description; // with the custom files
    QStringList customFiles;
    QStringList textNames; // further tags that the catalogue brings
    int maxEmph1 = 0;
    int maxEmph2 = 0;
    bool scrambled = false;
    std::vector<DesignSection> sections; // those without errors so far
    ManifestPart source;

    // Null if there is none.
    const DesignSection* Find(int kind) const;
};

// Reads manifest and files of `folder`. Errors: whatever keeps a section from being made.
Design ReadDesign(const QString& folder, PackReport& report);
