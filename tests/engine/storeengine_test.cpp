#include "storefixture.h"

#include "engine/presence.h"
#include "tests/support/files.h"

#include <QFile>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

void SetMode(const QString& path, mode_t mode) {
    ASSERT_EQ(chmod(path.toUtf8().constData(), mode), 0);
}

constexpr uid_t kNobody = 65534;

} // namespace

TEST(StoreConnection, RefusesWhatIsNoStore) {
    StoreFixture store;
    store.Leave();
    const QByteArray whole = ReadFile(store.Path());
    const QString folder = store.Folder() + "/";
    WriteFile(folder + "texto", QByteArray(5000, 'x'));
    WriteFile(folder + "vacio", {});
    WriteFile(folder + "cortado", whole.left(whole.size() - 4096));
    WriteFile(folder + "cabecera", whole.left(50));
    QByteArray damaged = whole;
    damaged.replace(110, 3000, QByteArray(3000, '\xA5'));
    WriteFile(folder + "roto", damaged);
    for (const QString& path :
         {QString(), folder, folder + "nada", folder + "texto", folder + "vacio",
          folder + "cortado", folder + "cabecera", folder + "roto", QStringLiteral(":memory:")}) {
        EXPECT_EQ(ErrorOf([&] { StoreConnection::Open(path); }), kErrOpen) << path.toStdString();
    }
    EXPECT_EQ(ErrorOf([&] { StoreConnection::Create(store.Path()); }), kErrOpen);
    EXPECT_EQ(ErrorOf([&] { StoreConnection::Create(folder + "nada/x"); }), kErrOpen);
    EXPECT_EQ(ReadFile(store.Path()), whole);
    EXPECT_EQ(ErrorOf([&] { StoreConnection::Open(store.Path()); }), 0);
}

TEST(StoreConnection, ExecutesAllStatementsOrNone) {
    StoreFixture store;
    EXPECT_EQ(ErrorOf([&] {
                  store.Connection()->Execute("DELETE FROM Products; INSERT INTO Nada VALUES (1)");
              }),
              kErrStatement);
    EXPECT_EQ(store.Rows("SELECT count(*) FROM Products"), "3");
}

TEST(StoreConnection, CompactsIntoANewWholeStore) {
    StoreFixture store;
    store.Connection()->Execute(
        "PRAGMA user_version=7;"
        "WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i+1 FROM n WHERE i<2000)"
        " INSERT INTO Texts SELECT 'Borrado', i, 0, hex(randomblob(200)) FROM n;"
        "DELETE FROM Texts WHERE TableName = 'Borrado'");
    const QString copy = store.Folder() + "/copia.tmp";
    store.Connection()->CompactInto(copy);
    EXPECT_FALSE(QFile::exists(copy + ".lck"));
    EXPECT_LT(QFileInfo(copy).size(), QFileInfo(store.Path()).size() / 10);
    EXPECT_EQ(ErrorOf([&] { store.Connection()->CompactInto(copy); }), kErrDisk);

    const auto compacted = StoreConnection::Open(copy);
    Recordset rows;
    rows.SetConnection(compacted);
    rows.SetSource("SELECT count(*), (SELECT count(*) FROM Texts) FROM Products");
    rows.Open();
    EXPECT_EQ(rows.Text(0), "3");
    EXPECT_EQ(rows.Text(1), "5");
}

TEST(StoreConnection, DamagedStoreLeavesNoCompactedCopy) {
    StoreFixture store;
    store.Connection()->Execute(
        "WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i+1 FROM n WHERE i<500)"
        " INSERT INTO Texts SELECT 'Lleno', i, 0, hex(randomblob(200)) FROM n");
    store.Leave();
    QByteArray damaged = ReadFile(store.Path());
    damaged.replace(damaged.size() / 2 & ~4095, 4096, QByteArray(4096, '\xA5'));
    WriteFile(store.Path(), damaged);
    store.Enter();
    const QString copy = store.Folder() + "/copia.tmp";
    EXPECT_EQ(ErrorOf([&] { store.Connection()->CompactInto(copy); }), kErrDisk);
    EXPECT_FALSE(QFile::exists(copy));
}

TEST(StoreConnection, SeesOtherProcessesAndNotItself) {
    StoreFixture store;
    store.Leave();
    OtherProcess other([&](OtherProcess& parent) {
        const auto connection = StoreConnection::Open(store.Path());
        parent.Say('o');
        parent.Hear();
    });
    ASSERT_EQ(other.Hear(), 'o');
    store.Enter();
    const auto second = StoreConnection::Open(store.Path());
    EXPECT_TRUE(store.Connection()->OpenElsewhere());
    EXPECT_FALSE(StoreClaim(store.Path()).Held());
    other.Kill();
    EXPECT_FALSE(store.Connection()->OpenElsewhere());
    EXPECT_FALSE(second->OpenElsewhere());
    EXPECT_TRUE(StoreClaim(store.Path()).Held());
}

TEST(StoreClaim, KeepsOtherProcessesOutWhileItLives) {
    StoreFixture store;
    store.Leave();
    OtherProcess other([&](OtherProcess& parent) {
        while (parent.Hear() != 0) {
            const int error = ErrorOf([&] { StoreConnection::Open(store.Path()); });
            parent.Say(error == 0 ? 'o' : error == kErrOpen ? 'r' : '?');
        }
    });
    const auto ask = [&other] {
        other.Say('?');
        return other.Hear();
    };
    {
        const StoreClaim claim(store.Path());
        ASSERT_TRUE(claim.Held());
        EXPECT_EQ(ask(), 'r');
        store.Enter(); // the claimant itself may open and close it
        store.Leave();
        EXPECT_EQ(ask(), 'r');
        store.Enter();
    }
    EXPECT_EQ(ask(), 'o');
}

TEST(StoreConnection, ReadOnlyStoreCanBeReadAndRefusesWrites) {
    StoreFixture store;
    store.Leave();
    SetMode(store.Path(), 0444);
    SetMode(store.Path() + ".lck", 0444); // whose owner could lock its rows
    SetMode(store.Folder(), 0555);
    OtherProcess other([&](OtherProcess& parent) {
        if (geteuid() == 0 && setuid(kNobody) != 0) { // permissions don't bind root
            return;
        }
        store.Enter();
        Recordset row = store.Cursor("SELECT * FROM Products");
        row.Set(u"SaleZone", QString("Soria"));
        const int error = ErrorOf([&] { row.Update(); });
        parent.Say(error == kErrDisk && row.HasPending() ? 'd' : '?');
        Recordset locked = store.Cursor("SELECT * FROM Products", true);
        parent.Say(ErrorOf([&] { locked.Set(u"SaleZone", QString()); }) == kErrRowLocked ? 'l'
                                                                                         : '?');
    });
    EXPECT_EQ(other.Hear(), 'd');
    EXPECT_EQ(other.Hear(), 'l');
    SetMode(store.Folder(), 0755);
}
