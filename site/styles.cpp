#include "site/styles.h"

#include "core/settings.h"
#include "site/template.h"
#include "site/transforms.h"
#include "text/ansi.h"
#include "text/numbers.h"

using namespace Qt::StringLiterals;

std::vector<StyleColor> StyleColors;

void ResetStyles() {
    StyleColors.clear();
}

void LoadStyles() {
    const int section = FindSection(kKindColorSets);
    if (section != kNoSection) {
        ApplyStyle(SectionBodies[section], TemplColorSet, StyleColors);
    }
}

void ApplyStyle(const QByteArray& body, int set, std::vector<StyleColor>& colors) {
    const QString names = GetParam(FromAnsi(body), u"PARAMS"_s);
    if (names.isEmpty()) {
        return;
    }
    const QByteArray mark = "STYLE" + QByteArray::number(set);
    qsizetype from = 0;
    const QString block = FromAnsi(FirstBetween(body, "<!--" + mark, mark + "-->", from));
    colors.clear();
    for (const QString& name : SplitFields(names, u","_s)) {
        colors.push_back({ToAnsi(name), ToAnsi(GetParam(block, name))});
    }
}

QString ReadColorSets(const QByteArray& body) {
    const QString text = FromAnsi(body);
    const int count = LeadingInteger(GetParam(text, u"NUMBERSOFSTYLES"_s));
    QStringList sets;
    for (int set = 1; set <= count; ++set) {
        sets.append(GetParam(text, u"COLORSSTYLE"_s + QString::number(set)));
    }
    return sets.join(u'|');
}
