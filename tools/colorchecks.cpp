#include "tools/colorchecks.h"

#include "site/styles.h"
#include "site/transforms.h"
#include "text/ansi.h"
#include "text/numbers.h"
#include "tools/paramchecks.h"

#include <QRegularExpression>

namespace {

constexpr int kSetsOnScreen = 3;
constexpr int kFirstChosen = 1; // the set of a new installation

bool IsSwatches(const QString& value) {
    static const QRegularExpression pattern("^ *[0-9A-Fa-f]{6} *(, *[0-9A-Fa-f]{6} *){2}$");
    return pattern.match(value).hasMatch();
}

void CheckNames(const QStringList& names, const SourcePlace& place, PackReport& report) {
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (names[i].isEmpty()) {
            report.Error(place, "PARAMS tiene un nombre de color vacío");
            continue;
        }
        for (const QString& later : names.mid(i + 1)) {
            if (later.contains(names[i])) {
                report.Error(place, "el color «" + names[i] + "» es parte de «" + later + "»");
            }
        }
    }
}

// The values of one set. False where the body lacks it.
bool CheckSet(const QString& body, int set, const QStringList& names, const SourcePlace& place,
              PackReport& report) {
    const QString mark = "STYLE" + QString::number(set);
    qsizetype from = 0;
    const QString block =
        FromAnsi(FirstBetween(ToAnsi(body), ToAnsi("<!--" + mark), ToAnsi(mark + "-->"), from));
    if (from == 0) {
        return false;
    }
    for (const QString& item : block.split(';')) {
        const qsizetype equals = item.indexOf('=');
        if (equals >= 0) {
            CheckParamIsFound(block, item.left(equals).trimmed(), TrimBlanks(item.mid(equals + 1)),
                              place, report);
        }
    }
    for (const QString& name : names) {
        if (!name.isEmpty() && GetParam(block, name).isEmpty()) {
            report.Error(place, "el color «" + name + "» no tiene valor en " + mark);
        }
    }
    return true;
}

void CheckSets(const QString& body, const QStringList& names, const SourcePlace& place,
               PackReport& report) {
    const int count = LeadingInteger(GetParam(body, "NUMBERSOFSTYLES"));
    if (count < 1) {
        report.Error(place, "NUMBERSOFSTYLES no dice cuántos juegos de colores hay");
    } else if (count > kSetsOnScreen) {
        report.Warning(place, "la pantalla de configuración muestra solo tres juegos");
    }
    const QStringList swatches = ReadColorSets(ToAnsi(body)).split('|');
    for (int set = 0; set < count; ++set) {
        if (!IsSwatches(swatches.value(set))) {
            report.Warning(place, QString("COLORSSTYLE%1 no son tres colores como 402010,F8F0E8,"
                                          "FFFFFF")
                                      .arg(set + 1));
        }
    }
    for (int set = 0; set < qMax(count, kFirstChosen + 1); ++set) {
        if (!CheckSet(body, set, names, place, report)) {
            report.Warning(place, QString("falta el juego de colores STYLE%1: si se elige, los "
                                          "colores quedan vacíos")
                                      .arg(set));
        }
    }
}

// Lists enter a page after its colours.
void CheckLists(const Design& design, const QStringList& names, PackReport& report) {
    for (const DesignSection& section : design.sections) {
        const bool isLate =
            section.kind->body == BodyUse::List && section.kind->number != kKindPictureBlock;
        for (const SourceLine& line : section.text.lines) {
            for (const QString& name : names) {
                if (isLate && !name.isEmpty() && line.text.contains(name)) {
                    report.Warning(line.place,
                                   "los colores no se sustituyen dentro de una lista: «" + name +
                                       "»");
                }
            }
        }
    }
}

} // namespace

void CheckColorSets(const Design& design, PackReport& report) {
    const DesignSection* section = design.Find(kKindColorSets);
    if (section == nullptr || section->body.isEmpty()) {
        return;
    }
    const SourcePlace place =
        section->text.lines.empty() ? section->source.Place("kind") : section->text.lines[0].place;
    const QString body = FromAnsi(section->body);
    const QString list = GetParam(body, "PARAMS");
    if (list.isEmpty()) {
        report.Error(place, "PARAMS no dice los nombres de los colores");
        return;
    }
    const QStringList names = list.split(',');
    CheckNames(names, place, report);
    CheckSets(body, names, place, report);
    CheckLists(design, names, report);
}
