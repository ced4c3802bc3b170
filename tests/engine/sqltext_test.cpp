#include "engine/sqltext.h"

#include "storefixture.h"
#include "tests/support/files.h"

TEST(TranslateStatement, KnowsTopDoubleQuotesAndWritableRows) {
    const QString name =
        "statements, as the engine gets them, and whether their rows can be written";
    for (const QStringList& row : ReadTable(TABLES, name)) {
        const StatementText text = TranslateStatement(row[0]);
        EXPECT_EQ(text.sql.toStdString(), row[1].toStdString());
        EXPECT_EQ(!text.sqlWithRowId.isEmpty(), row[2] == "yes") << row[0].toStdString();
    }
    EXPECT_EQ(TranslateStatement("SELECT a, b FROM t WHERE c").sqlWithRowId.toStdString(),
              "SELECT a, b, _rowid_ FROM t WHERE c");
}

TEST(TranslateStatement, RefusesWhatIsNoSingleWholeSelect) {
    EXPECT_EQ(ErrorOf([] { TranslateStatement(""); }), kErrStatement);
    for (const QStringList& row : ReadTable(TABLES, "no single whole select")) {
        EXPECT_EQ(ErrorOf([&] { TranslateStatement(row[0]); }), kErrStatement)
            << row[0].toStdString();
    }
}
