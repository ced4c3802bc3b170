#include "platform/rowlock.h"

#include "storefixture.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace {

const QString kFirst = QStringLiteral("SELECT * FROM Products WHERE ProductId = 10001");

int Probe(Recordset& cursor) {
    return ErrorOf([&] { cursor.Set(u"IsNew", qint64{1}); });
}

} // namespace

TEST(RowLock, SecondCursorIsRefusedUntilTheFirstMovesOn) {
    StoreFixture store;
    Recordset first = store.Cursor(kFirst, true);
    Recordset second = store.Cursor(kFirst, true);
    Recordset reader = store.Cursor(kFirst);
    EXPECT_EQ(Probe(first), 0); // the value that is there: a write all the same
    EXPECT_FALSE(first.HasPending());
    EXPECT_EQ(Probe(second), kErrRowLocked);
    EXPECT_EQ(ErrorOf([&] { second.Delete(); }), kErrRowLocked);
    EXPECT_EQ(Probe(reader), 0);
    first.Set(u"SaleZone", QString("Soria"));
    first.Update();
    EXPECT_EQ(Probe(second), kErrRowLocked); // a commit doesn't end it
    Recordset neighbour = store.Cursor("SELECT * FROM Products WHERE ProductId = 10002", true);
    EXPECT_EQ(Probe(neighbour), 0);

    first.SetSource("SELECT * FROM Products WHERE 1 = 2");
    EXPECT_EQ(Probe(second), 0);
    EXPECT_EQ(second.Text(u"SaleZone"), "Soria"); // read anew under the lock
}

TEST(RowLock, RowDeletedSinceOpeningIsReportedAndNotLocked) {
    StoreFixture store;
    Recordset row = store.Cursor(kFirst, true);
    store.Connection()->Execute("DELETE FROM Products WHERE ProductId = 10001");
    EXPECT_EQ(Probe(row), kErrNoCurrentRow);
    EXPECT_NO_THROW(RowLock(store.Path(), "Products", 10001));
}

TEST(RowLock, AddedRowIsHeldByItsCreatorFromTheCommitOn) {
    StoreFixture store;
    Recordset creator = store.Cursor("SELECT * FROM Products", true);
    creator.AddNew();
    creator.Set(u"ProductId", qint64{10004});
    creator.Update();
    Recordset other = store.Cursor("SELECT * FROM Products WHERE ProductId = 10004", true);
    EXPECT_EQ(Probe(other), kErrRowLocked);
    creator.Close();
    EXPECT_EQ(Probe(other), 0);

    // Somebody still holds the id of a row that is gone: no row without its lock.
    const RowLock held(store.Path(), "Products", 10005);
    creator.Open();
    creator.AddNew();
    creator.Set(u"ProductId", qint64{10005});
    EXPECT_EQ(ErrorOf([&] { creator.Update(); }), kErrRowLocked);
    EXPECT_EQ(store.Rows("SELECT max(ProductId) FROM Products"), "10004");
}

TEST(RowLock, TablesDoNotShareLocks) {
    StoreFixture store;
    const RowLock products(store.Path(), "Products", 1);
    EXPECT_NO_THROW(RowLock(store.Path(), "Texts", 1));
    EXPECT_EQ(ErrorOf([&] { RowLock(store.Path(), "PRODUCTS", 1); }), kErrRowLocked);
}

TEST(RowLock, OtherProcessHoldsTheRowUntilItDies) {
    StoreFixture store;
    store.Leave();
    OtherProcess other([&](OtherProcess& parent) {
        store.Enter();
        Recordset row = store.Cursor(kFirst, true);
        row.Set(u"SaleZone", QString("a medias"));
        parent.Say('l');
        parent.Hear();
    });
    ASSERT_EQ(other.Hear(), 'l');
    store.Enter();
    Recordset mine = store.Cursor(kFirst, true);
    EXPECT_EQ(Probe(mine), kErrRowLocked);
    other.Kill();
    EXPECT_EQ(Probe(mine), 0);
    EXPECT_EQ(mine.Text(u"SaleZone"), "Ávila");
}

TEST(RowLock, ProcessKilledInTheMiddleOfAWriteLeavesTheStoreWhole) {
    StoreFixture store;
    store.Leave();
    OtherProcess other([&](OtherProcess& parent) {
        store.Enter();
        sqlite3_exec(store.Connection()->Handle(),
                     "PRAGMA cache_size=1; BEGIN IMMEDIATE; UPDATE Products SET "
                     "ProductRef='rota'; WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL "
                     "SELECT i+1 FROM n WHERE i<2000) INSERT INTO Texts SELECT "
                     "'x', i, 0, hex(randomblob(200)) FROM n",
                     nullptr, nullptr, nullptr);
        parent.Say('h');
        parent.Hear();
    });
    ASSERT_EQ(other.Hear(), 'h');
    ASSERT_GT(QFileInfo(store.Path() + "-journal").size(), 0);
    other.Kill();
    store.Enter();
    EXPECT_EQ(store.Rows("SELECT ProductRef FROM Products"), "A-1/B-2/C-3");
    EXPECT_EQ(store.Rows("SELECT count(*) FROM Texts"), "5");
}
