#include "storefixture.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/resource.h>

namespace {

constexpr char kAllTexts[] = "SELECT * FROM Texts ORDER BY rowid";

// The FieldValue of each row that the filter lets through.
std::string Filtered(Recordset& cursor, std::initializer_list<ColumnEquals> terms) {
    QStringList values;
    for (cursor.SetFilter(terms); cursor.HasRow(); cursor.MoveNext()) {
        values += cursor.Text(u"FieldValue");
    }
    return values.join(",").toStdString();
}

// No file of this process may grow beyond `bytes`, as on a full disk.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit limited = {bytes, usual.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &usual); }

private:
    rlimit usual = {};
};

} // namespace

TEST(Recordset, ReadsTypesAndNamesWithoutRegardToCase) {
    StoreFixture store;
    Recordset row = store.Cursor("SELECT * FROM Products ORDER BY ProductId");
    EXPECT_EQ(row.RecordCount(), 3);
    EXPECT_EQ(row.AbsolutePosition(), 1);
    EXPECT_EQ(row.Value(u"PRODUCTID"), Cell(qint64{10001}));
    EXPECT_EQ(row.Value(u"priceamount"), Cell(10.5));
    EXPECT_EQ(row.Text(u"SaleZone"), "Ávila");
    row.MoveNext();
    EXPECT_TRUE(row.IsNull(u"SaleZone"));
    EXPECT_EQ(ErrorOf([&] { row.Value(u"Nada"); }), kErrNoColumn);
    EXPECT_EQ(ErrorOf([&] { row.Value(-1); }), kErrNoColumn);
    EXPECT_EQ(ErrorOf([&] { row.Value(5); }), kErrNoColumn);

    EXPECT_EQ(store.Rows("SELECT x'C3B1', '', 1e300 = 1e300"), "ñ,,1");
}

TEST(Recordset, EachOfManyRowsKeepsItsOwnTexts) {
    StoreFixture store;
    store.Connection()->Execute(
        "WITH RECURSIVE n(i) AS (VALUES(0) UNION ALL SELECT i+1 FROM n WHERE i<2999)"
        " INSERT INTO Texts SELECT 'Muchos', i % 400, i, substr('ñandú y más', 1, i % 12) FROM n");
    Recordset rows = store.Cursor("SELECT * FROM Texts WHERE TableName = 'Muchos' "
                                  "ORDER BY FieldDefId");
    ASSERT_EQ(rows.RecordCount(), 3000);
    for (int i = 0; rows.HasRow(); rows.MoveNext(), ++i) {
        ASSERT_EQ(rows.Integer(u"FieldDefId"), i);
        ASSERT_EQ(rows.Text(u"ItemId"), QString::number(i % 400));
        ASSERT_EQ(rows.Text(u"FieldValue"), QStringLiteral("ñandú y más").left(i % 12)) << i;
    }
}

TEST(Recordset, WalksFromFirstPastLast) {
    StoreFixture store;
    Recordset row = store.Cursor("SELECT ProductId FROM Products ORDER BY ProductId");
    row.SetAbsolutePosition(3);
    EXPECT_EQ(row.Text(0), "10003");
    row.MoveNext();
    EXPECT_EQ(ErrorOf([&] { row.Value(0); }), kErrNoCurrentRow);
    row.MoveNext();
    EXPECT_EQ(row.AbsolutePosition(), 0);
    row.SetAbsolutePosition(4);
    EXPECT_FALSE(row.HasRow());
}

TEST(Recordset, RefusesWithTheNumberOfTheFault) {
    StoreFixture store;
    Recordset closed;
    EXPECT_EQ(ErrorOf([&] { closed.MoveFirst(); }), kErrNotOpen);
    EXPECT_EQ(ErrorOf([&] { closed.Open(); }), kErrNotOpen);
    EXPECT_EQ(closed.RecordCount(), 0);

    Recordset empty = store.Cursor("SELECT * FROM Products WHERE 1 = 2");
    EXPECT_EQ(empty.ColumnCount(), 5);
    EXPECT_EQ(ErrorOf([&] { empty.Set(u"IsNew", qint64{1}); }), kErrNoCurrentRow);

    store.Connection()->Execute("CREATE VIEW Vista AS SELECT IsNew FROM Products;"
                                "CREATE TABLE SinId (IsNew TEXT PRIMARY KEY) WITHOUT ROWID;"
                                "INSERT INTO SinId VALUES ('a')");
    for (const char* statement :
         {"SELECT count(*) AS IsNew FROM Products", "SELECT DISTINCT IsNew FROM Products",
          "SELECT IsNew+1 AS IsNew FROM Products", "SELECT IsNew FROM Vista",
          "SELECT IsNew FROM SinId"}) {
        Recordset rows = store.Cursor(statement);
        EXPECT_EQ(ErrorOf([&] { rows.Set(u"IsNew", qint64{7}); }), kErrNotUpdatable) << statement;
        EXPECT_FALSE(rows.HasPending());
    }
    Recordset counted = store.Cursor("SELECT count(*) FROM Products");
    EXPECT_EQ(ErrorOf([&] { counted.AddNew(); }), kErrNotUpdatable);
    EXPECT_EQ(ErrorOf([&] { counted.Delete(); }), kErrNotUpdatable);
    EXPECT_EQ(ErrorOf([&] { store.Cursor("SELECT Nada FROM Products"); }), kErrStatement);
}

TEST(Recordset, EditsStayInTheCopyUntilUpdate) {
    StoreFixture store;
    Recordset rows = store.Cursor("SELECT * FROM Products p WHERE p.ProductId < 10003");
    rows.Set(u"SaleZone", QString("Soria"));
    rows.Set(u"PriceAmount", QString("12")); // as typed
    rows.MoveNext();
    rows.Set(u"IsNew", QString("2"));
    rows.Set(u"ProductRef", qint64{77});
    EXPECT_EQ(rows.Value(u"IsNew"), Cell(qint64{2}));
    EXPECT_EQ(rows.Value(u"ProductRef"), Cell(QString("77")));
    EXPECT_EQ(store.Rows("SELECT SaleZone, IsNew FROM Products WHERE ProductId < 10003"),
              "Ávila,1/-,0");
    EXPECT_TRUE(rows.HasPending());
    rows.Update();
    EXPECT_FALSE(rows.HasPending());
    EXPECT_EQ(rows.AbsolutePosition(), 2);
    EXPECT_EQ(store.Rows("SELECT * FROM Products WHERE ProductId < 10003"),
              "10001,A-1,12,1,Soria/10002,77,20,2,-");
}

TEST(Recordset, WritesOnlyTheColumnsThatDiffer) {
    StoreFixture store;
    Recordset mine = store.Cursor("SELECT * FROM Products WHERE ProductId = 10001");
    mine.Set(u"ProductRef", QString("A-1"));
    EXPECT_FALSE(mine.HasPending());
    mine.Set(u"SaleZone", QString("Soria"));
    mine.Set(u"IsNew", qint64{5});
    mine.Set(u"IsNew", qint64{1});
    store.Connection()->Execute("UPDATE Products SET IsNew = 2, ProductRef = 'Z' "
                                "WHERE ProductId = 10001");
    mine.Update();
    EXPECT_EQ(store.Rows("SELECT ProductRef, IsNew, SaleZone FROM Products LIMIT 1"), "Z,2,Soria");
}

TEST(Recordset, AddedRowGetsDefaultsAndCanBeEditedAgain) {
    StoreFixture store;
    Recordset rows = store.Cursor("SELECT * FROM Products WHERE 1 = 2");
    rows.AddNew();
    EXPECT_TRUE(rows.IsNull(u"IsNew"));
    rows.Set(u"ProductId", QString("10004"));
    rows.Set(u"ProductRef", QString("D-4"));
    rows.AddNew(); // nothing written to it: the store numbers it
    EXPECT_EQ(rows.AbsolutePosition(), 2);
    rows.Update();
    EXPECT_EQ(rows.Text(u"ProductId"), "10005");
    rows.MoveFirst();
    EXPECT_EQ(rows.Value(u"PriceAmount"), Cell(0.0));
    rows.Set(u"SaleZone", QString("León"));
    rows.Set(u"ProductId", qint64{20000}); // the row's own id moves with it
    rows.Update();
    rows.Set(u"SaleZone", QString("Lugo"));
    rows.Update();
    EXPECT_EQ(store.Rows("SELECT * FROM Products WHERE ProductId > 10003 ORDER BY ProductId"),
              "10005,-,0,0,-/20000,D-4,0,0,Lugo");
}

TEST(Recordset, DeletesFromTheFrontAndWalksOn) {
    StoreFixture store;
    Recordset rows = store.Cursor(kAllTexts);
    rows.MoveNext();
    rows.Delete();
    EXPECT_EQ(rows.AbsolutePosition(), 0);
    EXPECT_EQ(ErrorOf([&] { rows.Delete(); }), kErrNoCurrentRow);
    rows.MoveNext();
    EXPECT_EQ(rows.Text(u"FieldValue"), "Piso");
    rows.AddNew();
    rows.Set(u"FieldValue", QString("Nuevo"));
    rows.Delete(); // never reaches the store
    while (rows.RecordCount() > 1) {
        rows.MoveFirst();
        rows.Delete();
    }
    EXPECT_EQ(store.Rows("SELECT count(*) FROM Texts"), "5");
    rows.Update();
    EXPECT_EQ(store.Rows(kAllTexts), "Products,-,0,Nadie");
    rows.MoveFirst();
    EXPECT_EQ(rows.Text(u"FieldValue"), "Nadie");
}

TEST(Recordset, FilterLetsEqualRowsThrough) {
    StoreFixture store;
    Recordset rows = store.Cursor(kAllTexts);
    const int item = rows.Column(u"ItemId");
    const int field = rows.Column(u"FieldDefId");
    EXPECT_EQ(Filtered(rows, {{item, u"10001"}}), "Casa,Lejos,Foto");
    EXPECT_EQ(Filtered(rows, {{item, u"10001"}, {u"tablename", u"PRODUCTS"}}), "Casa,Lejos");
    EXPECT_EQ(Filtered(rows, {{u"TableName", u"Products"}, {item, u"10001"}, {field, u"1"}}),
              "Lejos");
    EXPECT_EQ(Filtered(rows, {{field, u"1"}}), "Lejos");
    EXPECT_EQ(Filtered(rows, {{field, u"1"}, {field, u"0"}}), "");
    EXPECT_EQ(Filtered(rows, {{item, {}}}), "");
    EXPECT_EQ(Filtered(rows, {{u"FieldValue", u"CASA"}}), "Casa");
    EXPECT_EQ(Filtered(rows, {}), "Casa,Lejos,Piso,Foto,Nadie");
    for (const ColumnEquals& absent : {ColumnEquals(u"Nada", u"1"), {4, u"1"}, {-1, u"1"}}) {
        EXPECT_EQ(ErrorOf([&] { rows.SetFilter({absent}); }), kErrNoColumn);
    }
    Recordset prices = store.Cursor("SELECT PriceAmount, 'x' AS FieldValue FROM Products");
    EXPECT_EQ(Filtered(prices, {{u"PriceAmount", u"10.5"}}), "x");
    EXPECT_EQ(Filtered(prices, {{u"PriceAmount", u"20"}}), "x");
}

TEST(Recordset, FilterFollowsChanges) {
    StoreFixture store;
    Recordset rows = store.Cursor(kAllTexts);
    rows.SetFilter({{u"ItemId", u"10001"}});
    rows.Set(u"FieldValue", QString("O'Casey \"ñ\""));
    rows.Set(u"ItemId", QString("7"));
    EXPECT_EQ(rows.RecordCount(), 3); // until the filter is set again
    rows.MoveNext();
    rows.Delete();
    rows.MoveNext();
    EXPECT_EQ(rows.Text(u"FieldValue"), "Foto");
    rows.AddNew();
    rows.Set(u"ItemId", QString("10001"));
    EXPECT_EQ(rows.AbsolutePosition(), 3);
    EXPECT_EQ(Filtered(rows, {{u"ItemId", u"10001"}}), "Foto,");
    EXPECT_EQ(Filtered(rows, {{u"FieldValue", u"o'casey \"Ñ\""}, {u"ItemId", u"7"}}),
              "O'Casey \"ñ\"");
    rows.Open();
    EXPECT_EQ(rows.RecordCount(), 5);
}

TEST(Recordset, CloneHoldsWhatWasRead) {
    StoreFixture store;
    Recordset rows = store.Cursor("SELECT * FROM Products ORDER BY ProductId");
    rows.Delete();
    rows.Update();
    rows.MoveFirst();
    rows.Set(u"ProductRef", QString("otra"));
    rows.AddNew();
    Recordset clone = rows.Clone();
    EXPECT_EQ(clone.RecordCount(), 2);
    EXPECT_EQ(clone.Text(u"ProductRef"), "B-2");
    EXPECT_FALSE(clone.HasPending());
    clone.SetSource("SELECT * FROM Texts");
    clone.Open();
    EXPECT_EQ(clone.RecordCount(), 5);
    EXPECT_EQ(rows.RecordCount(), 3);
}

TEST(Recordset, EditedRowGoneMeanwhileWritesNothingAtAll) {
    StoreFixture store;
    Recordset rows = store.Cursor("SELECT * FROM Products ORDER BY ProductId");
    rows.Set(u"ProductRef", QString("uno"));
    rows.MoveNext();
    rows.Set(u"ProductRef", QString("dos"));
    rows.AddNew();
    store.Connection()->Execute("DELETE FROM Products WHERE ProductId = 10002");
    EXPECT_EQ(ErrorOf([&] { rows.Update(); }), kErrNoCurrentRow);
    EXPECT_TRUE(rows.HasPending());
    EXPECT_EQ(store.Rows("SELECT ProductRef FROM Products"), "A-1/C-3");
}

TEST(Recordset, RefusedRowStaysPendingUntilItIsRight) {
    StoreFixture store;
    Recordset rows = store.Cursor("SELECT * FROM Products WHERE 1 = 2");
    rows.AddNew();
    rows.Set(u"ProductId", qint64{10001});
    EXPECT_EQ(ErrorOf([&] { rows.Update(); }), kErrDuplicate);
    rows.Set(u"ProductId", qint64{10009});
    rows.Update();
    EXPECT_EQ(store.Rows("SELECT max(ProductId) FROM Products"), "10009");
}

TEST(Recordset, BusyStoreKeepsEverythingPending) {
    StoreFixture store;
    const auto second = StoreConnection::Open(store.Path());
    sqlite3_busy_timeout(store.Connection()->Handle(), 1);
    Recordset rows = store.Cursor("SELECT * FROM Products WHERE ProductId = 10001");
    rows.Set(u"ProductRef", QString("nueva"));
    sqlite3_exec(second->Handle(), "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    EXPECT_EQ(ErrorOf([&] { rows.Update(); }), kErrBusy);
    EXPECT_EQ(ErrorOf([&] { rows.Requery(); }), kErrBusy);
    EXPECT_EQ(rows.Text(u"ProductRef"), "nueva");
    sqlite3_exec(second->Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    rows.Update();
    EXPECT_EQ(store.Rows("SELECT ProductRef FROM Products LIMIT 1"), "nueva");
}

TEST(Recordset, FullDiskKeepsEverythingPending) {
    StoreFixture store;
    Recordset rows = store.Cursor("SELECT * FROM Texts WHERE FieldValue = 'Casa'");
    rows.Set(u"FieldValue", QString(100'000, u'ñ'));
    rows.AddNew();
    rows.Set(u"FieldValue", QString("detrás"));
    {
        const FullDisk disk(static_cast<rlim_t>(QFileInfo(store.Path()).size()) + 20'000);
        EXPECT_EQ(ErrorOf([&] { rows.Update(); }), kErrDisk);
        EXPECT_EQ(store.Rows(kAllTexts).substr(0, 21), "Products,10001,0,Casa");
    }
    EXPECT_TRUE(rows.HasPending());
    rows.Update();
    EXPECT_EQ(store.Rows("SELECT length(FieldValue) FROM Texts WHERE length(FieldValue) > 5"),
              "100000/6");
}
