#include "storefixture.h"

#include <csignal>
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

using RecordsetTest = StoreFixture;

} // namespace

TEST_F(RecordsetTest, ReadsTypesAndNamesWithoutRegardToCase) {
    Recordset row = Cursor("SELECT * FROM Products ORDER BY ProductId");
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

    EXPECT_EQ(Rows("SELECT x'C3B1', '', 1e300 = 1e300"), "ñ,,1");
}

TEST_F(RecordsetTest, EachOfManyRowsKeepsItsOwnTexts) {
    Execute(
        "WITH RECURSIVE n(i) AS (VALUES(0) UNION ALL SELECT i+1 FROM n WHERE i<2999)"
        " INSERT INTO Texts SELECT 'Muchos', i % 400, i, substr('ñandú y más', 1, i % 12) FROM n");
    Recordset rows = Cursor("SELECT * FROM Texts WHERE TableName = 'Muchos' ORDER BY FieldDefId");
    ASSERT_EQ(rows.RecordCount(), 3000);
    for (int i = 0; rows.HasRow(); rows.MoveNext(), ++i) {
        ASSERT_EQ(rows.Integer(u"FieldDefId"), i);
        ASSERT_EQ(rows.Text(u"ItemId"), QString::number(i % 400));
        ASSERT_EQ(rows.Text(u"FieldValue"), QStringLiteral("ñandú y más").left(i % 12)) << i;
    }
}

TEST_F(RecordsetTest, WalksFromFirstPastLast) {
    Recordset row = Cursor("SELECT ProductId FROM Products ORDER BY ProductId");
    row.SetAbsolutePosition(3);
    EXPECT_EQ(row.Text(0), "10003");
    row.MoveNext();
    EXPECT_EQ(ErrorOf([&] { row.Value(0); }), kErrNoCurrentRow);
    row.MoveNext();
    EXPECT_EQ(row.AbsolutePosition(), 0);
    row.SetAbsolutePosition(4);
    EXPECT_FALSE(row.HasRow());
}

TEST_F(RecordsetTest, RefusesWithTheNumberOfTheFault) {
    Recordset closed;
    EXPECT_EQ(ErrorOf([&] { closed.MoveFirst(); }), kErrNotOpen);
    EXPECT_EQ(ErrorOf([&] { closed.Open(); }), kErrNotOpen);
    EXPECT_EQ(closed.RecordCount(), 0);

    Recordset empty = Cursor("SELECT * FROM Products WHERE 1 = 2");
    EXPECT_EQ(empty.ColumnCount(), 5);
    EXPECT_EQ(ErrorOf([&] { empty.Set(u"IsNew", qint64{1}); }), kErrNoCurrentRow);

    Execute("CREATE VIEW Vista AS SELECT IsNew FROM Products;"
            "CREATE TABLE SinId (IsNew TEXT PRIMARY KEY) WITHOUT ROWID;"
            "INSERT INTO SinId VALUES ('a')");
    for (const char* rest :
         {"count(*) AS IsNew FROM Products", "DISTINCT IsNew FROM Products",
          "IsNew+1 AS IsNew FROM Products", "IsNew FROM Vista", "IsNew FROM SinId"}) {
        Recordset rows = Cursor(QString("SELECT ") + rest);
        EXPECT_EQ(ErrorOf([&] { rows.Set(u"IsNew", qint64{7}); }), kErrNotUpdatable) << rest;
        EXPECT_FALSE(rows.HasPending());
    }
    Recordset counted = Cursor("SELECT count(*) FROM Products");
    EXPECT_EQ(ErrorOf([&] { counted.AddNew(); }), kErrNotUpdatable);
    EXPECT_EQ(ErrorOf([&] { counted.Delete(); }), kErrNotUpdatable);
    EXPECT_EQ(ErrorOf([&] { Cursor("SELECT Nada FROM Products"); }), kErrStatement);
}

TEST_F(RecordsetTest, EditsStayInTheCopyUntilUpdate) {
    Recordset rows = Cursor("SELECT * FROM Products p WHERE p.ProductId < 10003");
    rows.Set(u"SaleZone", QString("Soria"));
    rows.Set(u"PriceAmount", QString("12")); // as typed
    rows.MoveNext();
    rows.Set(u"IsNew", QString("2"));
    rows.Set(u"ProductRef", qint64{77});
    EXPECT_EQ(rows.Value(u"IsNew"), Cell(qint64{2}));
    EXPECT_EQ(rows.Value(u"ProductRef"), Cell(QString("77")));
    EXPECT_EQ(Rows("SELECT SaleZone, IsNew FROM Products WHERE ProductId < 10003"), "Ávila,1/-,0");
    EXPECT_TRUE(rows.HasPending());
    rows.Update();
    EXPECT_FALSE(rows.HasPending());
    EXPECT_EQ(rows.AbsolutePosition(), 2);
    EXPECT_EQ(Rows("SELECT * FROM Products WHERE ProductId < 10003"),
              "10001,A-1,12,1,Soria/10002,77,20,2,-");
}

TEST_F(RecordsetTest, WritesOnlyTheColumnsThatDiffer) {
    Recordset mine = Cursor("SELECT * FROM Products WHERE ProductId = 10001");
    mine.Set(u"ProductRef", QString("A-1"));
    EXPECT_FALSE(mine.HasPending());
    mine.Set(u"SaleZone", QString("Soria"));
    mine.Set(u"IsNew", qint64{5});
    mine.Set(u"IsNew", qint64{1});
    Execute("UPDATE Products SET IsNew = 2, ProductRef = 'Z' WHERE ProductId = 10001");
    mine.Update();
    EXPECT_EQ(Rows("SELECT ProductRef, IsNew, SaleZone FROM Products LIMIT 1"), "Z,2,Soria");
}

TEST_F(RecordsetTest, AddedRowGetsDefaultsAndCanBeEditedAgain) {
    Recordset rows = Cursor("SELECT * FROM Products WHERE 1 = 2");
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
    EXPECT_EQ(Rows("SELECT * FROM Products WHERE ProductId > 10003 ORDER BY ProductId"),
              "10005,-,0,0,-/20000,D-4,0,0,Lugo");
}

TEST_F(RecordsetTest, DeletesFromTheFrontAndWalksOn) {
    Recordset rows = Cursor(kAllTexts);
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
    EXPECT_EQ(Rows("SELECT count(*) FROM Texts"), "5");
    rows.Update();
    EXPECT_EQ(Rows(kAllTexts), "Products,-,0,Nadie");
    rows.MoveFirst();
    EXPECT_EQ(rows.Text(u"FieldValue"), "Nadie");
}

TEST_F(RecordsetTest, FilterLetsEqualRowsThrough) {
    Recordset rows = Cursor(kAllTexts);
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
    Recordset prices = Cursor("SELECT PriceAmount, 'x' AS FieldValue FROM Products");
    EXPECT_EQ(Filtered(prices, {{u"PriceAmount", u"10.5"}}), "x");
    EXPECT_EQ(Filtered(prices, {{u"PriceAmount", u"20"}}), "x");
}

TEST_F(RecordsetTest, FilterFollowsChanges) {
    Recordset rows = Cursor(kAllTexts);
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

TEST_F(RecordsetTest, CloneHoldsWhatWasRead) {
    Recordset rows = Cursor("SELECT * FROM Products ORDER BY ProductId");
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

TEST_F(RecordsetTest, EditedRowGoneMeanwhileWritesNothingAtAll) {
    Recordset rows = Cursor("SELECT * FROM Products ORDER BY ProductId");
    rows.Set(u"ProductRef", QString("uno"));
    rows.MoveNext();
    rows.Set(u"ProductRef", QString("dos"));
    rows.AddNew();
    Execute("DELETE FROM Products WHERE ProductId = 10002");
    EXPECT_EQ(ErrorOf([&] { rows.Update(); }), kErrNoCurrentRow);
    EXPECT_TRUE(rows.HasPending());
    EXPECT_EQ(Rows("SELECT ProductRef FROM Products"), "A-1/C-3");
}

TEST_F(RecordsetTest, RefusedRowStaysPendingUntilItIsRight) {
    Recordset rows = Cursor("SELECT * FROM Products WHERE 1 = 2");
    rows.AddNew();
    rows.Set(u"ProductId", qint64{10001});
    EXPECT_EQ(ErrorOf([&] { rows.Update(); }), kErrDuplicate);
    rows.Set(u"ProductId", qint64{10009});
    rows.Update();
    EXPECT_EQ(Rows("SELECT max(ProductId) FROM Products"), "10009");
}

TEST_F(RecordsetTest, BusyStoreKeepsEverythingPending) {
    const auto second = StoreConnection::Open(Path());
    sqlite3_busy_timeout(Connection()->Handle(), 1);
    Recordset rows = Cursor("SELECT * FROM Products WHERE ProductId = 10001");
    rows.Set(u"ProductRef", QString("nueva"));
    sqlite3_exec(second->Handle(), "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    EXPECT_EQ(ErrorOf([&] { rows.Update(); }), kErrBusy);
    EXPECT_EQ(ErrorOf([&] { rows.Requery(); }), kErrBusy);
    EXPECT_EQ(rows.Text(u"ProductRef"), "nueva");
    sqlite3_exec(second->Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    rows.Update();
    EXPECT_EQ(Rows("SELECT ProductRef FROM Products LIMIT 1"), "nueva");
}

TEST_F(RecordsetTest, FullDiskKeepsEverythingPending) {
    Recordset rows = Cursor("SELECT * FROM Texts WHERE FieldValue = 'Casa'");
    rows.Set(u"FieldValue", QString(100'000, u'ñ'));
    rows.AddNew();
    rows.Set(u"FieldValue", QString("detrás"));
    {
        const FullDisk disk(static_cast<rlim_t>(QFileInfo(Path()).size()) + 20'000);
        EXPECT_EQ(ErrorOf([&] { rows.Update(); }), kErrDisk);
        EXPECT_EQ(Rows(kAllTexts).substr(0, 21), "Products,10001,0,Casa");
    }
    EXPECT_TRUE(rows.HasPending());
    rows.Update();
    EXPECT_EQ(Rows("SELECT length(FieldValue) FROM Texts WHERE length(FieldValue) > 5"),
              "100000/6");
}
