#include "generator/fieldvalues.h"

#include "site/transforms.h"
#include "store/taggedtext.h"
#include "text/ansi.h"
#include "text/numbers.h"

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
    rows.ClearFilter();
    for (rows.MoveFirst(); rows.HasRow(); rows.MoveNext()) {
        FieldDef def;
        def.Id = rows.Integer(u"FieldDefId");
        def.Type = FieldTypeOf(rows.Text(u"Type"));
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

// The definitions of a table; nullptr if it has none. Names of tables go without regard to case.
FieldSources::TextTable* FindTextTable(FieldSources& sources, QStringView name) {
    for (FieldSources::TextTable& table : sources.TextTables) {
        if (name.compare(table.Name, Qt::CaseInsensitive) == 0) {
            return &table;
        }
    }
    return nullptr;
}

void ReadLangFieldDefs(FieldSources& sources, Recordset& rows) {
    rows.ClearFilter();
    for (rows.MoveFirst(); rows.HasRow(); rows.MoveNext()) {
        const QString name = rows.Text(u"TableName");
        FieldSources::TextTable* table = FindTextTable(sources, name);
        if (table == nullptr) {
            table = &sources.TextTables.emplace_back(FieldSources::TextTable{name, {}});
        }
        const QString key = rows.Text(u"FieldName").toUpper();
        table->Defs.push_back({rows.Integer(u"FieldDefId"), key, KeyTag(key)});
    }
}

FieldItem ReadFieldRow(FieldSources& sources, const QString& lang) {
    FieldItem item;
    item.Value = sources.Fields.Text(sources.FieldValueColumn);
    const qint64 id = CellInteger(sources.Fields.Value(sources.FieldIdColumn));
    const auto place = sources.DefById.constFind(id);
    if (place == sources.DefById.constEnd()) {
        item.Key = QString::number(id);
        item.Tag = KeyTag(item.Key);
        return item;
    }
    FieldDef& def = sources.Defs[*place];
    item.Key = def.Key;
    item.Tag = def.Tag;
    switch (def.Type) {
    case FieldType::YesNo:
        item.Value = item.Value == u"1" ? u"%SI%"_s : u"%NO%"_s;
        break;
    case FieldType::Options:
        item.Option = &def;
        item.RawValue = std::exchange(item.Value, OptionText(def, item.Value, lang));
        break;
    case FieldType::Text:
    case FieldType::Internal:
        break;
    }
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

// Puts the text of the current row into its place in a list of its language.
void TakeText(const FieldSources& sources, const FieldSources::TextTable& table, FieldList& list) {
    const qint64 id = CellInteger(sources.LangFields.Value(sources.TextIdColumn));
    for (size_t place = 0; place < list.size(); ++place) {
        // The first row counts: a value is null only until it has been read.
        if (table.Defs[place].Id == id && list[place].Value.isNull()) {
            const QString value = sources.LangFields.Text(sources.TextValueColumn);
            list[place].Value = value.isNull() ? QString("") : value;
        }
    }
}

void ReplaceItem(TagText& text, const FieldItem& item, EmptyShows empty) {
    text.ReplaceBy(item.Tag, [&] {
        const bool dash = item.Value.isEmpty() && empty == EmptyShows::Dash;
        return dash ? QByteArray("-") : ToAnsi(item.Value);
    });
}

} // namespace

FieldSources::FieldSources(SiteSnapshot& snapshot)
    : Fields(snapshot[kSnapProductFields]), LangFields(snapshot[kSnapLangFields]),
      FieldProductColumn(Fields.Column(u"ProductId")), FieldIdColumn(Fields.Column(u"FieldDefId")),
      FieldValueColumn(Fields.Column(u"FieldValue")),
      TextTableColumn(LangFields.Column(u"TableName")),
      TextItemColumn(LangFields.Column(u"ItemId")), TextLangColumn(LangFields.Column(u"LangCode")),
      TextIdColumn(LangFields.Column(u"FieldDefId")),
      TextValueColumn(LangFields.Column(u"FieldValue")) {
    ReadFieldDefs(*this, snapshot[kSnapFieldDefs]);
    ReadLangFieldDefs(*this, snapshot[kSnapLangFieldDefs]);
}

void ResetActiveFieldDefs() {
    ActiveFieldDefs.clear();
}

int ChoiceNumber(const QString& stored) {
    const double number =
        RoundHalfEven(IsNumeric(stored) ? ParseNumber(stored) : LeadingNumber(stored));
    const bool fits = number >= 0 && number <= std::numeric_limits<qint16>::max();
    return fits ? static_cast<int>(number) : -1;
}

QString OptionText(FieldDef& def, const QString& stored, const QString& lang) {
    const std::pair key(lang, stored);
    auto known = def.Shown.constFind(key);
    if (known == def.Shown.constEnd()) {
        known = def.Shown.insert(
            key, IsNumeric(stored) ? TaggedText(def.Choices, lang, ChoiceNumber(stored)) : stored);
    }
    return *known;
}

void LoadProductFields(FieldSources& sources, const QString& productId, const QString& lang,
                       int marker, FieldList& list) {
    list.clear();
    Recordset& rows = sources.Fields;
    for (rows.SetFilter({{sources.FieldProductColumn, productId}}); rows.HasRow();
         rows.MoveNext()) {
        list.push_back(ReadFieldRow(sources, lang));
    }
    if (marker == kLayoutMarker) {
        CloseUpFields(list);
    }
}

void TranslateFields(FieldList& list, const QString& lang) {
    for (FieldItem& item : list) {
        if (item.Option != nullptr) {
            item.Value = OptionText(*item.Option, item.RawValue, lang);
        }
    }
}

void LoadLangFields(FieldSources& sources, const QString& itemId, const QString& tableName,
                    const QStringList& langs, std::vector<FieldList>& lists) {
    lists.resize(langs.size());
    const FieldSources::TextTable* table = FindTextTable(sources, tableName);
    for (FieldList& list : lists) {
        list.clear();
        for (size_t place = 0; table != nullptr && place < table->Defs.size(); ++place) {
            list.push_back({table->Defs[place].Key, {}, {}, table->Defs[place].Tag});
        }
    }
    if (table == nullptr) {
        return;
    }
    Recordset& rows = sources.LangFields;
    rows.SetFilter({{sources.TextTableColumn, tableName}, {sources.TextItemColumn, itemId}});
    for (; rows.HasRow(); rows.MoveNext()) {
        const QString lang = rows.Text(sources.TextLangColumn);
        for (qsizetype place = 0; place < langs.size(); ++place) {
            if (lang.compare(langs[place], Qt::CaseInsensitive) == 0) {
                TakeText(sources, *table, lists[place]);
            }
        }
    }
}

FieldList LoadLangFields(FieldSources& sources, const QString& itemId, const QString& tableName,
                         const QString& lang) {
    std::vector<FieldList> lists;
    LoadLangFields(sources, itemId, tableName, QStringList(lang), lists);
    return std::move(lists.front());
}

QString MainPictureId(const QString& productId, Recordset& pictures) {
    pictures.SetFilter({{u"ProductId", productId}});
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
