#include "store/langvalues.h"
#include "store/taggedtext.h"
#include "tests/delivery/deliveredstore.h"
#include "text/ansi.h"

#include <gtest/gtest.h>

namespace {

const QStringList kDesignLanguages = {"ES", "EN", "DE", "FR"};

// Every entry has a text of its own in each language, in characters that a site can show. An entry
// with one alternative alone serves all languages.
void ExpectTranslated(const QString& tagged) {
    const int entries = int(tagged.count('|')) + 1;
    for (int i = 0; i < entries; ++i) {
        const QStringList alternatives = tagged.split('|')[i].split('#');
        for (const QString& language : kDesignLanguages) {
            const QString text = TaggedText(tagged, language, i);
            EXPECT_FALSE(text.isEmpty())
                << tagged.toStdString() << " in " << language.toStdString();
            EXPECT_EQ(FromAnsi(ToAnsi(text)), text);
            EXPECT_TRUE(alternatives.size() == 1 || alternatives.contains(language + text))
                << tagged.toStdString() << " lacks " << language.toStdString();
        }
    }
}

} // namespace

TEST(DeliveredCatalogues, NumberTheirFieldsDenselyWithInternalOnesLast) {
    ASSERT_FALSE(DeliveredCatalogues().isEmpty());
    for (const QString& name : DeliveredCatalogues()) {
        SCOPED_TRACE(name.toStdString());
        const DeliveredStore store(name);
        bool internal = false;
        Recordset rows = store.Read("SELECT * FROM ProductFieldDef ORDER BY FieldDefId");
        for (int id = 0; rows.HasRow(); rows.MoveNext(), ++id) {
            EXPECT_EQ(rows.Integer(u"FieldDefId"), id);
            EXPECT_FALSE(internal && rows.Text(u"Type") != "I") << id;
            internal = rows.Text(u"Type") == "I";
        }
    }
}

TEST(DeliveredCatalogues, SpeakAllLanguagesOfTheDesignsInCaptionsAndChoices) {
    for (const QString& name : DeliveredCatalogues()) {
        SCOPED_TRACE(name.toStdString());
        const DeliveredStore store(name);
        Recordset rows = store.Read("SELECT * FROM ProductFieldDef WHERE Type<>'I'");
        for (; rows.HasRow(); rows.MoveNext()) {
            ExpectTranslated(rows.Text(u"Caption"));
            const QString type = rows.Text(u"Type");
            if (type == "O") {
                ExpectTranslated(rows.Text(u"Choices"));
            }
            const int choices = type == "O" ? int(rows.Text(u"Choices").count('|')) + 1 : 2;
            EXPECT_TRUE(type == "T" || (rows.Text(u"DefaultValue") != "" &&
                                        rows.Integer(u"DefaultValue") < choices));
        }
        Recordset internal = store.Read("SELECT Caption FROM ProductFieldDef WHERE Type='I'");
        for (; internal.HasRow(); internal.MoveNext()) {
            EXPECT_FALSE(internal.Text(0).contains('#')) << "shown as it stands";
        }
    }
}

TEST(DeliveredCatalogues, HaveAsManyTextsPerLanguageAsTheProgramCreates) {
    const QList<QPair<QString, int>> expected = {
        {"Products", kProductTexts}, {"Pictures", kPictureTexts}, {"CorpInfo", kCorpTexts}};
    for (const QString& name : DeliveredCatalogues()) {
        SCOPED_TRACE(name.toStdString());
        const DeliveredStore store(name);
        for (const auto& [table, texts] : expected) {
            Recordset rows = store.Read(
                QString("SELECT * FROM MultiLangFieldDef WHERE TableName='%1' ORDER BY FieldDefId")
                    .arg(table));
            EXPECT_EQ(rows.RecordCount(), texts);
            for (int id = 0; rows.HasRow(); rows.MoveNext(), ++id) {
                EXPECT_EQ(rows.Integer(u"FieldDefId"), id);
            }
        }
        EXPECT_EQ(store.Count("SELECT count(*) FROM CorpInfo"), 1);
        Recordset languages = store.Read("SELECT LangCode FROM Languages ORDER BY Priority");
        for (const QString& language : kDesignLanguages) {
            EXPECT_EQ(languages.Text(0), language);
            languages.MoveNext();
        }
    }
}

// The portal takes the first six fields by their place and knows the types by their Spanish names.
TEST(RealEstateCatalogue, BeginsWithTheFieldsThatThePortalReads) {
    const DeliveredStore store("inmobiliaria");
    Recordset rows = store.Read("SELECT * FROM ProductFieldDef ORDER BY FieldDefId");
    for (const char* caption : {"Superficie", "Tipo de inmueble", "Habitaciones individuales",
                                "Habitaciones dobles", "Baños", "Aseos"}) {
        EXPECT_EQ(TaggedText(rows.Text(u"Caption"), "ES", 0), caption);
        EXPECT_EQ(rows.Text(u"Type"), rows.AbsolutePosition() == 2 ? "O" : "T");
        rows.MoveNext();
    }
    rows.SetAbsolutePosition(2);
    QStringList types;
    for (int i = 0; i <= rows.Text(u"Choices").count('|'); ++i) {
        types.append(TaggedText(rows.Text(u"Choices"), "ES", i).toUpper());
    }
    for (const char* known : {"OBRA NUEVA", "PISOS", "CASAS", "FINCAS RUSTICAS", "LOCALES",
                              "TERRENOS", "GARAGES", "ALQUILER"}) {
        EXPECT_TRUE(types.contains(known)) << known;
    }
    EXPECT_EQ(store.Count("SELECT count(*) FROM ProductFieldDef WHERE Type='I'"), 13);
    EXPECT_LE(store.Count("SELECT count(*) FROM ProductFieldDef WHERE Type<>'I'"), 24);
}
