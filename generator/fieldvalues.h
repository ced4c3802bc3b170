// Values of a product's fields and of the texts per language, as pages show them: the two lists
// that every page, block and list of products is filled from. Owns ActiveFieldDefs.
#pragma once

#include "site/tagtext.h"
#include "store/fieldtypes.h"
#include "store/snapshot.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <vector>

// Marker of the layout preview.
inline constexpr int kLayoutMarker = 65535;

// Key of the text that names a product's page file.
inline constexpr char16_t kFileKeyField[] = u"SHORTDESC";

// A definition of a field, ready for many look-ups.
struct FieldDef {
    qint64 Id = 0;
    FieldType Type = FieldType::Text;
    QString Choices;
    QString Caption;
    QString Key;
    QByteArray Tag;
    QHash<std::pair<QString, QString>, QString>
        Shown; // by language and stored value, see OptionText
};

struct FieldItem {
    QString Key;                // FieldDefId in decimal, or a text's FieldName in upper case
    QString RawValue;           // stored index of an option list; empty for everything else
    QString Value;              // as shown; empty when there is none
    QByteArray Tag;             // Key between "%%" and "%%"
    FieldDef* Option = nullptr; // of an option list, the one kind that differs by language
};
using FieldList = std::vector<FieldItem>;

// What one pass reads values from: the sets of a snapshot, which must outlive it, with columns
// looked up and definitions read once.
struct FieldSources {
    explicit FieldSources(SiteSnapshot& snapshot);

    struct TextDef {
        qint64 Id = 0;
        QString Key;
        QByteArray Tag;
    };
    struct TextTable {
        QString Name;
        std::vector<TextDef> Defs;
    };

    Recordset& Fields;
    Recordset& LangFields;
    std::vector<FieldDef> Defs; // in the order of the store
    std::vector<TextTable> TextTables;
    QHash<qint64, int> DefById; // place in Defs of the first definition with that number
    int FieldProductColumn;
    int FieldIdColumn;
    int FieldValueColumn;
    int TextTableColumn;
    int TextItemColumn;
    int TextLangColumn;
    int TextIdColumn;
    int TextValueColumn;
};

// Keys of the fields that the layout preview shows, once per language and field, in the order in
// which the pages were expanded; empty outside that preview.
extern QStringList ActiveFieldDefs;

// At the beginning of a generation.
void ResetActiveFieldDefs();

// The number of a choice, from 0, that a stored value names; -1 when it is beyond 16 bits or below
// 0. A text that is no number counts by the number it begins with.
int ChoiceNumber(const QString& stored);

// What an option list shows for a stored value: the choice of that number in `lang`, empty beyond
// the list; a value that is no number as it stands.
QString OptionText(FieldDef& def, const QString& stored, const QString& lang);

// The product's fields in the order of their numbers, values in `lang`. With kLayoutMarker absent
// values give up their places to those behind them, what remains empty becomes "&nbsp;", and the
// fields shown are noted in ActiveFieldDefs.
void LoadProductFields(FieldSources& sources, const QString& productId, const QString& lang,
                       int marker, FieldList& list);

// A list that was loaded, without kLayoutMarker, in another language.
void TranslateFields(FieldList& list, const QString& lang);

// Every text defined for `tableName`, as TextTableName has it, empty where the item
// has none: a list for each of `langs`, in their order.
void LoadLangFields(FieldSources& sources, const QString& itemId, const QString& tableName,
                    const QStringList& langs, std::vector<FieldList>& lists);

// The same in one language.
FieldList LoadLangFields(FieldSources& sources, const QString& itemId, const QString& tableName,
                         const QString& lang);

// The first picture in album order; "nopicture" for a product without pictures.
QString MainPictureId(const QString& productId, Recordset& pictures);

// What an empty value becomes in the text.
enum class EmptyShows { Dash, Nothing };

// Replaces the tag of every item. A list whose first key is empty replaces nothing.
void ReplaceFields(TagText& text, const FieldList& list, EmptyShows empty);

// The same for a product's texts, empty ones as "-"; the file key %FK% follows its text, also in
// `fileName` if there is one.
void ReplaceProductTexts(TagText& text, const FieldList& list, QString* fileName = nullptr);
