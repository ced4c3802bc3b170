#include "generator/fieldvalues.h"

#include "generator/transforms.h"
#include "platform/ansi.h"
#include "platform/numbers.h"
#include "store/taggedtext.h"

#include <limits>

QStringList ActiveFieldDefs;

using namespace Qt::StringLiterals;

namespace {

// Stands for no until the finishing pass puts the language's word, as %SI% stands for yes.
constexpr char16_t kNo[] = u"%NO%";

QByteArray KeyTag(const QString& key) {
    return "%%" + ToAnsi(key) + "%%";
}

void ReadFieldDefs(FieldSources& sources, Recordset& rows) {
    rows.SetFilter({});
    for (rows.MoveFirst(); rows.HasRow(); rows.MoveNext()) {
        FieldDef def;
        def.Id = rows.Integer(u"FieldDefId");
        def.Type = rows.Text(u"Type");
        def.Choices = rows.Text(u"Choices");
        def.Caption = rows.Text(u"Caption");
        def.Key = QString::number(def.Id);
        def.Tag = KeyTag(def.Key);
        if (!sources.DefById.contains(def.Id)) {
            sources.DefById.insert(def.Id, static_cast<int>(sources.Defs.size()));
        }
        sources.Defs.push_back(std::move(def));
    }
}

void ReadLangFieldDefs(FieldSources& sources, Recordset& rows) {
    rows.SetFilter({});
    for (rows.MoveFirst(); rows.HasRow(); rows.MoveNext()) {
        const QString key = rows.Text(u"FieldName").toUpper();
        sources.LangDefs.push_back(
            {rows.Text(u"TableName"), rows.Integer(u"FieldDefId"), key, KeyTag(key)});
    }
}

// Texts of all choices of a definition in one language.
const QStringList& ChoiceTexts(FieldDef& def, const QString& lang) {
    auto known = def.ChoiceTexts.find(lang);
    if (known == def.ChoiceTexts.end()) {
        QStringList texts;
        for (int choice = 0; choice <= def.Choices.count(u'|'); ++choice) {
            texts.append(TaggedText(def.Choices, lang, choice));
        }
        known = def.ChoiceTexts.insert(lang, texts);
    }
    return *known;
}

// Fills in what a stored value means under its definition.
void ShowStoredValue(FieldItem& item, FieldDef& def, const QString& stored, const QString& lang) {
    if (def.Type == u"B") {
        item.Value = stored == u"1" ? u"%SI%"_s : u"%NO%"_s;
    } else if (def.Type == u"O") {
        item.RawValue = stored;
        item.Value =
            IsNumeric(stored) ? ChoiceTexts(def, lang).value(ChoiceNumber(stored)) : stored;
    } else {
        item.Value = stored;
    }
}

FieldItem ReadFieldRow(FieldSources& sources, const QString& lang) {
    FieldItem item;
    const QString stored = sources.Fields.Text(sources.FieldValueColumn);
    const qint64 id = CellInteger(sources.Fields.Value(sources.FieldIdColumn));
    const auto place = sources.DefById.constFind(id);
    if (place == sources.DefById.constEnd()) {
        item.Key = QString::number(id);
        item.Tag = KeyTag(item.Key);
        item.Value = stored;
        return item;
    }
    FieldDef& def = sources.Defs[*place];
    item.Key = def.Key;
    item.Tag = def.Tag;
    ShowStoredValue(item, def, stored, lang);
    return item;
}

// One pass over neighbours; whether anything moved.
bool CloseUpOnce(FieldList& list) {
    bool moved = false;
    for (size_t place = 0; place + 1 < list.size(); ++place) {
        FieldItem& here = list[place];
        FieldItem& next = list[place + 1];
        if ((here.Value.isEmpty() || here.Value == u"-") && !next.Value.isEmpty()) {
            here.Value = next.Value;
            here.RawValue = next.RawValue;
            next.Value.clear();
            moved = true;
        }
    }
    return moved;
}

// The layout preview shows its fields together, with no gaps: values move, keys stay.
void CloseUpFields(FieldList& list) {
    for (FieldItem& item : list) {
        if (item.Value == kNo) {
            item.Value.clear();
        }
        if (!item.Value.isEmpty()) {
            ActiveFieldDefs.append(item.Key);
        }
    }
    while (CloseUpOnce(list)) {
    }
    for (FieldItem& item : list) {
        if (item.Value.isEmpty()) {
            item.Value = u"&nbsp;"_s;
        }
    }
}

// Narrows the value only when the text can hold the tag at all.
void ReplaceItem(TagText& text, const FieldItem& item, EmptyShows empty) {
    if (text.MayHold(item.Tag)) {
        const bool dash = item.Value.isEmpty() && empty == EmptyShows::Dash;
        text.Replace(item.Tag, dash ? QByteArray("-") : ToAnsi(item.Value));
    }
}

} // namespace

FieldSources::FieldSources(SiteSnapshot& snapshot)
    : Fields(snapshot[kSnapProductFields]), LangFields(snapshot[kSnapLangFields]),
      FieldIdColumn(Fields.Column(u"FieldDefId")), FieldValueColumn(Fields.Column(u"FieldValue")),
      TextIdColumn(LangFields.Column(u"FieldDefId")),
      TextValueColumn(LangFields.Column(u"FieldValue")) {
    ReadFieldDefs(*this, snapshot[kSnapFieldDefs]);
    ReadLangFieldDefs(*this, snapshot[kSnapLangFieldDefs]);
}

void ResetActiveFieldDefs() {
    ActiveFieldDefs.clear();
}

QString QuotedValue(QString value) {
    return u'\'' + value.replace(u'\'', QLatin1String("''")) + u'\'';
}

int ChoiceNumber(const QString& stored) {
    const double number =
        RoundHalfEven(IsNumeric(stored) ? ParseNumber(stored) : LeadingNumber(stored));
    const bool fits = number >= 0 && number <= std::numeric_limits<qint16>::max();
    return fits ? static_cast<int>(number) : -1;
}

void LoadProductFields(FieldSources& sources, const QString& productId, const QString& lang,
                       int marker, FieldList& list) {
    list.clear();
    Recordset& rows = sources.Fields;
    for (rows.SetFilter(u"ProductId = "_s + productId); rows.HasRow(); rows.MoveNext()) {
        list.push_back(ReadFieldRow(sources, lang));
    }
    if (marker == kLayoutMarker) {
        CloseUpFields(list);
    }
}

void LoadLangFields(FieldSources& sources, const QString& itemId, const QString& tableName,
                    const QString& lang, FieldList& list) {
    list.clear();
    std::vector<qint64> ids;
    for (const FieldSources::LangFieldDef& def : sources.LangDefs) {
        if (def.TableName.compare(tableName, Qt::CaseInsensitive) == 0) {
            list.push_back({def.Key, {}, {}, def.Tag});
            ids.push_back(def.Id);
        }
    }
    Recordset& rows = sources.LangFields;
    rows.SetFilter(u"TableName = "_s + QuotedValue(tableName) + u" AND ItemId = "_s +
                   QuotedValue(itemId) + u" AND LangCode = "_s + QuotedValue(lang));
    for (; rows.HasRow(); rows.MoveNext()) {
        const qint64 id = CellInteger(rows.Value(sources.TextIdColumn));
        for (size_t place = 0; place < ids.size(); ++place) {
            // The first row counts: a value is null only until it has been read.
            if (ids[place] == id && list[place].Value.isNull()) {
                const QString value = rows.Text(sources.TextValueColumn);
                list[place].Value = value.isNull() ? QString("") : value;
            }
        }
    }
}

QString MainPictureId(const QString& productId, Recordset& pictures) {
    pictures.SetFilter(u"ProductId = "_s + productId);
    return pictures.HasRow() ? pictures.Text(u"PictureId") : u"nopicture"_s;
}

void ReplaceFields(TagText& text, const FieldList& list, EmptyShows empty) {
    if (list.empty() || list.front().Key.isEmpty()) {
        return;
    }
    for (const FieldItem& item : list) {
        ReplaceItem(text, item, empty);
    }
}

void ReplaceProductTexts(TagText& text, const FieldList& list, QString* fileName) {
    if (list.empty() || list.front().Key.isEmpty()) {
        return;
    }
    for (const FieldItem& item : list) {
        ReplaceItem(text, item, EmptyShows::Dash);
        if (item.Key == kFileKeyField) {
            const QString fileKey = MakeFileSuffix(item.Value);
            text.Replace("%FK%", ToAnsi(fileKey));
            if (fileName != nullptr) {
                fileName->replace(u"%FK%"_s, fileKey);
            }
        }
    }
}
