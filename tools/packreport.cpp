#include "tools/packreport.h"

void PackReport::Error(const SourcePlace& place, const QString& text) {
    hasErrors = true;
    Append(place, "error", text);
}

void PackReport::Warning(const SourcePlace& place, const QString& text) {
    Append(place, "aviso", text);
}

void PackReport::Append(const SourcePlace& place, const QString& kind, const QString& text) {
    const QString line = place.line > 0 ? ":" + QString::number(place.line) : QString();
    const QString entry = place.file + line + ": " + kind + ": " + text;
    // A file that several sections include would repeat itself.
    if (!lines.contains(entry)) {
        lines += entry;
    }
}
