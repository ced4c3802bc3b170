// design.ini: what a design consists of. docs/designs.md describes it.
#pragma once

#include "tools/packreport.h"

#include <QMap>
#include <QString>
#include <vector>

inline constexpr char kManifestName[] = "design.ini";

struct ManifestValue {
    QString text; // continued lines are joined by a line feed
    int line = 0;
};

// A run of keys: the header's or a section's.
struct ManifestPart {
    int line = 0; // of [section]; 1 for the header
    QMap<QString, ManifestValue> values;

    bool Has(const QString& key) const { return values.contains(key); }

    // Empty for a missing key; Text joins continued lines by a blank, Lines leaves them.
    QString Text(const QString& key) const;
    QString Lines(const QString& key) const { return values.value(key).text; }
    bool IsYes(const QString& key) const { return Text(key) == "yes"; }

    // Where the key stands; the part's own line for a missing one.
    SourcePlace Place(const QString& key) const;
};

struct DesignManifest {
    ManifestPart header;
    std::vector<ManifestPart> sections;
};

// Errors: no manifest, lines that are neither key nor section, unknown and repeated keys, values
// other than yes and no where those are meant.
DesignManifest ReadManifest(const QString& folder, PackReport& report);
