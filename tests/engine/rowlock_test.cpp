#include "engine/rowlock.h"

#include "storefixture.h"

#include <gtest/gtest.h>

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
