#include "tools/designfile.h"

#include "text/ansi.h"
#include "tools/designchecks.h"
#include "tools/tagchecks.h"

#include <QtEndian>

namespace {

constexpr char kMagicAndTag[] = "KPF    ";

QByteArray TextField(const QString& text, qsizetype size) {
    return ToAnsi(text).leftJustified(size, ' ', true);
}

template <typename Integer> QByteArray IntegerField(Integer value) {
    QByteArray field(sizeof value, '\0');
    qToLittleEndian(value, field.data());
    return field;
}

QByteArray HeaderRecord(const Design& design) {
    return kMagicAndTag + TextField(design.name, 50) + TextField(design.description, 497) +
           IntegerField(quint8(design.scrambled)) + IntegerField(quint8(design.maxEmph1)) +
           IntegerField(quint8(design.maxEmph2)) + IntegerField(qint16(0)) +
           IntegerField(qint16(design.sections.size()));
}

// `position` is counted from 1.
QByteArray SectionRecord(const DesignSection& section, qint64 position) {
    return IntegerField(qint32(0)) + TextField(section.name, 25) + IntegerField(qint32(position)) +
           IntegerField(qint32(section.body.size() - 1)) +
           IntegerField(qint16(section.kind->number)) + TextField(section.params, 200);
}

} // namespace

QByteArray EncodeDesign(const Design& design) {
    QByteArray table;
    QByteArray bodies;
    const qint64 firstBody = kHeaderSize + qint64(design.sections.size()) * kSectionSize + 1;
    for (const DesignSection& section : design.sections) {
        table += SectionRecord(section, firstBody + bodies.size());
        bodies += section.body;
    }
    if (design.scrambled) {
        for (char& byte : bodies) {
            byte = ~byte;
        }
    }
    return HeaderRecord(design) + table + bodies;
}

QByteArray PackDesign(const QString& folder, bool scramble, PackReport& report) {
    Design design = ReadDesign(folder, report);
    design.scrambled |= scramble;
    CheckDesign(design, report);
    CheckTags(design, report);
    return report.HasErrors() ? QByteArray() : EncodeDesign(design);
}
