#include "engine/sqltext.h"

#include "engine/storeerror.h"

#include <gtest/gtest.h>

TEST(TranslateStatement, KnowsTopDoubleQuotesAndWritableRows) {
    struct Case {
        const char* statement;
        const char* sql;
        bool hasRowId;
    };
    const Case cases[] = {
        {"SELECT * FROM Products WHERE 1 = 2", "SELECT * FROM Products WHERE 1 = 2", true},
        {"SELECT top 1 A, B FROM P WHERE A = 1 ORDER BY B;",
         "SELECT   A, B FROM P WHERE A = 1 ORDER BY B LIMIT 1", true},
        {"select a from t where b in (select top 2 c from u) order by a",
         "select a from t where b in (select   c from u LIMIT 2) order by a", true},
        {"SELECT a FROM t WHERE b like \"%O'Hara \"\"x\"\"%\"",
         "SELECT a FROM t WHERE b like '%O''Hara \"x\"%'", true},
        {"SELECT a FROM t WHERE b = 'top \"1\" from (' -- \"x\"",
         "SELECT a FROM t WHERE b = 'top \"1\" from ('", true},
        {"SELECT [from], 'x' FROM [my t] AS m /* join */ LIMIT 3",
         "SELECT [from], 'x' FROM [my t] AS m /* join */ LIMIT 3", true},
        {"SELECT (SELECT max(b) FROM u) AS m FROM t p ORDER BY m",
         "SELECT (SELECT max(b) FROM u) AS m FROM t p ORDER BY m", true},
        {"Select Max(ProductId)+1 from Products", "Select Max(ProductId)+1 from Products", false},
        {"SELECT DISTINCT TOP 5 z FROM t", "SELECT DISTINCT   z FROM t LIMIT 5", false},
        {"SELECT z, count(*) FROM t GROUP BY z", "SELECT z, count(*) FROM t GROUP BY z", false},
        {"SELECT a FROM t p LEFT JOIN u ON (p.a=u.b)", "SELECT a FROM t p LEFT JOIN u ON (p.a=u.b)",
         false},
        {"SELECT a FROM t, u", "SELECT a FROM t, u", false},
        {"SELECT a FROM (SELECT a FROM t)", "SELECT a FROM (SELECT a FROM t)", false},
        {"SELECT a FROM t UNION SELECT b FROM u", "SELECT a FROM t UNION SELECT b FROM u", false},
        {"SELECT 1", "SELECT 1", false},
    };
    for (const Case& entry : cases) {
        const StatementText text = TranslateStatement(entry.statement);
        EXPECT_EQ(text.sql.toStdString(), entry.sql);
        EXPECT_EQ(!text.sqlWithRowId.isEmpty(), entry.hasRowId) << entry.statement;
    }
    EXPECT_EQ(TranslateStatement("SELECT a, b FROM t WHERE c").sqlWithRowId.toStdString(),
              "SELECT a, b, _rowid_ FROM t WHERE c");
}

TEST(TranslateStatement, RefusesWhatIsNoSingleWholeSelect) {
    const char* const refused[] = {
        "",
        "   ;",
        "DELETE FROM t",
        "SELECT 'abc",
        "SELECT a FROM t WHERE b like '%it's%'",
        "SELECT \"abc",
        "SELECT [abc FROM t",
        "SELECT a /* FROM t",
        "SELECT (a FROM t",
        "SELECT a) FROM t",
        "SELECT a FROM t; DROP TABLE t",
        "SELECT TOP 1 a FROM t UNION SELECT b FROM u",
    };
    for (const char* statement : refused) {
        try {
            TranslateStatement(statement);
            ADD_FAILURE() << statement;
        } catch (const StoreError& error) {
            EXPECT_EQ(error.number, kErrStatement) << statement;
        }
    }
}
