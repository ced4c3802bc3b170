// What is delivered. The statements in tests/delivery/checks find what is wrong with a catalogue:
// those of todos.txt in each, those of another file in each that has its name in its own.
#include "engine/recordset.h"
#include "engine/storeengine.h"
#include "images/picturefile.h"
#include "store/langvalues.h"
#include "store/taggedtext.h"
#include "tests/support/files.h"
#include "text/ansi.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QStringList Catalogues() {
    return QDir(CATALOGUES).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

// A catalogue, opened as a copy, so that what is delivered gets no lock file beside it.
class Delivered : public testing::TestWithParam<QString> {
protected:
    void SetUp() override {
        const QString store = copy.filePath("Zandora.zdb");
        ASSERT_TRUE(QFile::copy(folder.filePath("Zandora.zdb"), store));
        connection = StoreConnection::Open(store);
    }

    Recordset Read(const QString& statement) const {
        Recordset rows;
        rows.SetConnection(connection);
        rows.SetSource(statement);
        rows.Open();
        return rows;
    }

    const QDir folder{QString(CATALOGUES "/") + GetParam()};

private:
    QTemporaryDir copy;
    std::shared_ptr<StoreConnection> connection;
};

INSTANTIATE_TEST_SUITE_P(Catalogues, Delivered, testing::ValuesIn(Catalogues()),
                         [](const auto& tested) {
                             return QString(tested.param).remove('-').toStdString();
                         });

// Every entry has a text of its own in each language of the designs, in characters that a site can
// show. An entry with one alternative alone serves all languages.
void ExpectTranslated(const QString& tagged) {
    SCOPED_TRACE(tagged.toStdString());
    for (int i = 0; i <= tagged.count('|'); ++i) {
        const QStringList alternatives = tagged.split('|')[i].split('#');
        for (const char* language : {"ES", "EN", "DE", "FR"}) {
            const QString text = TaggedText(tagged, language, i);
            EXPECT_FALSE(text.isEmpty()) << language;
            EXPECT_EQ(FromAnsi(ToAnsi(text)), text);
            EXPECT_TRUE(alternatives.size() == 1 || alternatives.contains(language + text))
                << language;
        }
    }
}

} // namespace

TEST_P(Delivered, HoldsNothingThatAStatementFinds) {
    for (const TextCase& check : ReadCases(CHECKS)) {
        const QString about = check.name.section('.', 0, 0);
        if (about == "todos" || GetParam().contains(about)) {
            Recordset wrong = Read(check.lines.join('\n'));
            EXPECT_FALSE(wrong.HasRow())
                << check.name.toStdString() << ": " << wrong.Text(0).toStdString();
        }
    }
}

TEST_P(Delivered, SpeaksAllLanguagesOfTheDesignsInCaptionsAndChoices) {
    Recordset rows = Read("SELECT * FROM ProductFieldDef WHERE Type<>'I'");
    for (; rows.HasRow(); rows.MoveNext()) {
        ExpectTranslated(rows.Text(u"Caption"));
        if (rows.Text(u"Type") == "O") {
            ExpectTranslated(rows.Text(u"Choices"));
        }
    }
}

TEST_P(Delivered, HasAsManyTextsPerLanguageAsTheProgramCreates) {
    const QString counted = "SELECT count(*) FROM MultiLangFieldDef WHERE TableName='%1'";
    const std::pair<const char*, int> created[] = {
        {"Products", kProductTexts}, {"Pictures", kPictureTexts}, {"CorpInfo", kCorpTexts}};
    for (const auto& [table, texts] : created) {
        EXPECT_EQ(Read(counted.arg(table)).Text(0), QString::number(texts)) << table;
    }
}

TEST_P(Delivered, SampleHasAReadablePictureForEveryRowAndNoOthers) {
    const bool sample = GetParam().contains("muestra");
    QStringList expected =
        sample ? QStringList{"CorpLogo.dat", "ExtraImage.dat", "FindUsMap.dat"} : QStringList();
    for (Recordset rows = Read("SELECT PicturePath FROM Pictures"); rows.HasRow();
         rows.MoveNext()) {
        expected.append(rows.Text(0));
    }
    for (const QString& file : expected) {
        EXPECT_FALSE(ReadPictureSize(folder.filePath(file)).isEmpty()) << file.toStdString();
    }
    expected.sort();
    QStringList found = folder.entryList({"*.dat"}, QDir::Files, QDir::Name);
    EXPECT_EQ(found.removeAll("sector.dat"), GetParam().contains("inmobiliaria") ? 1 : 0);
    EXPECT_EQ(found, expected);
}
