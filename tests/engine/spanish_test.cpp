#include "storefixture.h"

#include "engine/statement.h"
#include "tests/support/files.h"

namespace {

using SpanishStoreTest = StoreFixture;

// How the engine would run a statement, in its own words.
std::string QueryPlan(const StoreConnection& connection, const QString& statement) {
    std::string plan;
    Statement explain(connection.Handle(), "EXPLAIN QUERY PLAN " + statement.toUtf8());
    while (explain.Step()) {
        plan += CellText(explain.Column(3)).toStdString() + "\n";
    }
    return plan;
}

} // namespace

TEST(CompareSpanish, OrdersLikeADictionaryAndDisregardsCase) {
    const char* const ordered[] = {"",     "10",    "9",      "casa",  "CASAR", "caza",
                                   "nube", "nzz",   "ñandú",  "Ñoño",  "oca",   "solo",
                                   "sólo", "solos", "último", "zapato"};
    for (size_t place = 1; place < std::size(ordered); ++place) {
        EXPECT_LT(CompareSpanish(QString(ordered[place - 1]), QString(ordered[place])), 0)
            << ordered[place];
    }
    EXPECT_EQ(CompareSpanish(u"ÁÑü", u"áñÜ"), 0);
    EXPECT_NE(CompareSpanish(u"a", u"á"), 0);
}

TEST_F(SpanishStoreTest, LikeDisregardsCaseOfAllLetters) {
    for (const QStringList& row : ReadTable(TABLES, "text, pattern, whether it is like it")) {
        const QString statement = QString("SELECT '%1' like \"%2\"").arg(row[0], row[1]);
        EXPECT_EQ(Rows(statement), row[2].toStdString()) << statement.toStdString();
    }
    EXPECT_EQ(Rows("SELECT '50%' like '50!%' escape '!', '50x' like '50!%' escape '!', "
                   "NULL like 'x', 12.5 like '12%'"),
              "1,0,-,1");
    const QString longest(25'000, u'%');
    EXPECT_EQ(Rows("SELECT 'ñ' like '" + longest + longest + "'"), "1");
    EXPECT_EQ(ErrorOf([&] { Rows("SELECT 'ñ' like '" + longest + longest + "%'"); }),
              kErrStatement);
}

TEST_F(SpanishStoreTest, ColumnsFollowTheCollation) {
    EXPECT_EQ(Rows("SELECT SaleZone, count(*) FROM Products GROUP BY Salezone"), "-,1/Ávila,2");
    Execute("UPDATE Products SET SaleZone = 'oso' WHERE ProductId = 10001;"
            "UPDATE Products SET SaleZone = 'Ñu' WHERE ProductId = 10002");
    EXPECT_EQ(Rows("SELECT SaleZone FROM Products WHERE SaleZone > 'NZ' ORDER BY 1 DESC"),
              "oso/Ñu");
}

TEST_F(SpanishStoreTest, CstrWritesPlainDecimals) {
    EXPECT_EQ(Rows("SELECT cstr(10001), cstr(2.0), cstr(0.5), cstr(1e20), cstr('x'), cstr(NULL)"),
              "10001,2,0.5,100000000000000000000,x,-");
}

// Ten thousand products take a list's join from minutes to milliseconds with it.
TEST_F(SpanishStoreTest, JoinByIdAsTextUsesTheIndex) {
    Execute("CREATE INDEX ByItem ON Texts (TableName, ItemId, FieldDefId)");
    const QString statement =
        "SELECT ProductId, FieldValue AS MLShortDesc FROM Products p LEFT JOIN Texts ml ON "
        "(cstr(p.ProductId)=ml.ItemId AND ml.TableName='Products' AND ml.FieldDefId=0)";
    EXPECT_EQ(Rows(statement + " ORDER BY ProductId"), "10001,Casa/10002,Piso/10003,-");
    EXPECT_NE(QueryPlan(*Connection(), statement)
                  .find("ml USING INDEX ByItem (TableName=? AND ItemId=? AND FieldDefId=?)"),
              std::string::npos);
}
