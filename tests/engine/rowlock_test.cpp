#include "engine/rowlock.h"

#include "storefixture.h"

namespace {

const QString kFirst = QStringLiteral("SELECT * FROM Products WHERE ProductId = 10001");

using RowLockTest = StoreFixture;

int Probe(Recordset& cursor) {
    return ErrorOf([&] { cursor.Set(u"IsNew", qint64{1}); });
}

} // namespace

TEST_F(RowLockTest, SecondCursorIsRefusedUntilTheFirstMovesOn) {
    Recordset first = Cursor(kFirst, true);
    Recordset second = Cursor(kFirst, true);
    Recordset reader = Cursor(kFirst);
    EXPECT_EQ(Probe(first), 0); // the value that is there: a write all the same
    EXPECT_FALSE(first.HasPending());
    EXPECT_EQ(Probe(second), kErrRowLocked);
    EXPECT_EQ(ErrorOf([&] { second.Delete(); }), kErrRowLocked);
    EXPECT_EQ(Probe(reader), 0);
    first.Set(u"SaleZone", QString("Soria"));
    first.Update();
    EXPECT_EQ(Probe(second), kErrRowLocked); // a commit doesn't end it
    Recordset neighbour = Cursor("SELECT * FROM Products WHERE ProductId = 10002", true);
    EXPECT_EQ(Probe(neighbour), 0);

    first.SetSource("SELECT * FROM Products WHERE 1 = 2");
    EXPECT_EQ(Probe(second), 0);
    EXPECT_EQ(second.Text(u"SaleZone"), "Soria"); // read anew under the lock
}

TEST_F(RowLockTest, RowDeletedSinceOpeningIsReportedAndNotLocked) {
    Recordset row = Cursor(kFirst, true);
    Execute("DELETE FROM Products WHERE ProductId = 10001");
    EXPECT_EQ(Probe(row), kErrNoCurrentRow);
    EXPECT_NO_THROW(RowLock(Path(), "Products", 10001));
}

TEST_F(RowLockTest, AddedRowIsHeldByItsCreatorFromTheCommitOn) {
    Recordset creator = Cursor("SELECT * FROM Products", true);
    creator.AddNew();
    creator.Set(u"ProductId", qint64{10004});
    creator.Update();
    Recordset other = Cursor("SELECT * FROM Products WHERE ProductId = 10004", true);
    EXPECT_EQ(Probe(other), kErrRowLocked);
    creator.Close();
    EXPECT_EQ(Probe(other), 0);

    // Somebody still holds the id of a row that is gone: no row without its lock.
    const RowLock held(Path(), "Products", 10005);
    creator.Open();
    creator.AddNew();
    creator.Set(u"ProductId", qint64{10005});
    EXPECT_EQ(ErrorOf([&] { creator.Update(); }), kErrRowLocked);
    EXPECT_EQ(Rows("SELECT max(ProductId) FROM Products"), "10004");
}

TEST_F(RowLockTest, TablesDoNotShareLocks) {
    const RowLock products(Path(), "Products", 1);
    EXPECT_NO_THROW(RowLock(Path(), "Texts", 1));
    EXPECT_EQ(ErrorOf([&] { RowLock(Path(), "PRODUCTS", 1); }), kErrRowLocked);
}
