#include "tools/paramchecks.h"

#include "site/transforms.h"

#include <QRegularExpression>
#include <limits>

namespace {

bool IsSize(const QString& value) {
    static const QRegularExpression pattern("^([1-9][0-9]*)X([1-9][0-9]*)$");
    const QRegularExpressionMatch match = pattern.match(value);
    const int most = std::numeric_limits<qint16>::max();
    return match.hasMatch() && match.captured(1).toInt() <= most &&
           match.captured(2).toInt() <= most;
}

void CheckSizes(const DesignSection& section, const SourcePlace& place, PackReport& report) {
    const QString exact = GetParam(section.params, "RESIZE");
    const QString optimal = GetParam(section.params, "OPTIMALSIZE");
    for (const QString& value : {exact, optimal}) {
        if (!value.isEmpty() && !IsSize(value)) {
            report.Error(place, "«" + value + "» no es un tamaño como 460X345");
        }
    }
    const bool ofProducts = section.kind->number == kKindProductPicture;
    if (ofProducts && exact.isEmpty() && optimal.isEmpty()) {
        report.Warning(place, "sin RESIZE ni OPTIMALSIZE no se hace ninguna foto");
    } else if (!ofProducts && optimal.isEmpty()) {
        report.Warning(place, "sin OPTIMALSIZE no se hace la foto");
    }
}

void CheckFieldId(const DesignSection& section, const SourcePlace& place, PackReport& report) {
    static const QRegularExpression fieldId("^[0-9]+$");
    static const QRegularExpression textId("^(Products|Pictures|CorpInfo)\\.[0-9]+$");
    const QString value = GetParam(section.params, "FIELDDEFID");
    const bool ofTexts = section.kind->number == kKindCategoryTree;
    if (!(ofTexts ? textId : fieldId).match(value).hasMatch()) {
        report.Error(place, ofTexts ? "falta FIELDDEFID=tabla.número;, como Products.2"
                                    : "falta FIELDDEFID=número;");
    }
}

} // namespace

void CheckParams(const DesignSection& section, PackReport& report) {
    const SourcePlace place = section.source.Place("params");
    CheckCharacters(section.params, place, report);
    for (const QString& item : section.params.split(';')) {
        const qsizetype equals = item.indexOf('=');
        if (equals >= 0) {
            CheckParamIsFound(section.params, item.left(equals).trimmed(),
                              TrimBlanks(item.mid(equals + 1)), place, report);
        } else if (!item.trimmed().isEmpty()) {
            report.Error(place, "«" + item.trimmed() + "» no tiene la forma CLAVE=valor;");
        }
    }
    switch (section.kind->number) {
    case kKindProductPicture:
    case kKindCorpLogo:
    case kKindExtraPicture:
    case kKindFindUsMap:
        CheckSizes(section, place, report);
        break;
    case kKindChoiceList:
    case kKindCategoryTree:
        CheckFieldId(section, place, report);
        break;
    default:
        break;
    }
}

void CheckParamIsFound(const QString& text, const QString& key, const QString& value,
                       const SourcePlace& place, PackReport& report) {
    if (GetParam(text, key) != value) {
        report.Error(place, "el parámetro «" + key +
                                "» se encuentra antes, dentro de otro nombre o valor");
    }
}
