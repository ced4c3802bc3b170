#include "generator/choices.h"

#include "generator/fieldvalues.h"
#include "site/tagtext.h"
#include "site/template.h"
#include "site/transforms.h"
#include "site/weblangs.h"
#include "store/taggedtext.h"
#include "text/ansi.h"

#include <QRegularExpression>
#include <QSet>

std::vector<ChoiceBlock> ChoiceBlocks;

using namespace Qt::StringLiterals;

namespace {

QByteArray ChoiceListText(const SectionParts& parts, const std::vector<ChoiceItem>& items) {
    const TagText middle(parts.middle);
    QByteArray text = parts.head;
    for (const ChoiceItem& item : items) {
        TagText row = middle;
        row.Replace("%%CHOICE%%"_ba, ToAnsi(item.Text));
        row.Replace("%%CHOICEVALUE%%"_ba, ToAnsi(item.Value));
        text += row.Text();
    }
    return text + parts.tail;
}

// A field's number in plain decimal, as a design writes it.
QString FieldNumber(const QString& fieldId) {
    static const QRegularExpression kNumber(
        QRegularExpression::anchoredPattern(u"\\s*-?(\\d+\\.?\\d*|\\.\\d+)\\s*"_s));
    if (!kNumber.match(fieldId).hasMatch()) {
        throw StoreError(kErrStatement, u"El filtro no es válido: FieldDefID = "_s + fieldId);
    }
    return CellText(fieldId.toDouble());
}

} // namespace

void ResetChoices() {
    ChoiceBlocks.clear();
}

void LoadChoiceItems(SiteSnapshot& snapshot, const QString& fieldId, const QString& lang,
                     std::vector<ChoiceItem>& items) {
    items.clear();
    Recordset& defs = snapshot[kSnapFieldDefs];
    const QString number = FieldNumber(fieldId);
    defs.SetFilter({{u"FieldDefId", number}});
    const QString choices = defs.HasRow() ? defs.Text(u"Choices") : QString();

    Recordset& fields = snapshot[kSnapProductFields];
    const int valueColumn = fields.Column(u"FieldValue");
    QSet<QString> known;
    for (fields.SetFilter({{u"FieldDefId", number}}); fields.HasRow(); fields.MoveNext()) {
        const QString value = fields.Text(valueColumn);
        if (!value.isEmpty() && !known.contains(value)) {
            known.insert(value);
            items.push_back({value, TaggedText(choices, lang, ChoiceNumber(value))});
        }
    }
}

void BuildChoiceLists(SiteSnapshot& snapshot) {
    ChoiceBlocks.clear();
    for (const int section : AllSections(kKindChoiceList)) {
        const TemplateSectionRecord& record = TemplateSections[section];
        const QString fieldId = GetParam(record.Params, u"FIELDDEFID"_s);
        const SectionParts parts = SplitSectionBody(section);
        for (const QString& lang : WebLangs) {
            std::vector<ChoiceItem> items;
            LoadChoiceItems(snapshot, fieldId, lang, items);
            AddChoiceBlock({ToAnsi(record.Name), ChoiceListText(parts, items), lang});
        }
    }
}

void AddChoiceBlock(ChoiceBlock block) {
    ChoiceBlocks.push_back(std::move(block));
}
