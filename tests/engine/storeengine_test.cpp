#include "storefixture.h"

#include "engine/presence.h"
#include "tests/support/files.h"

#include <QFile>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

void SetMode(const QString& path, mode_t mode) {
    ASSERT_EQ(chmod(path.toUtf8().constData(), mode), 0);
}

using StoreConnectionTest = StoreFixture;

constexpr uid_t kNobody = 65534;

} // namespace

TEST_F(StoreConnectionTest, RefusesWhatIsNoStore) {
    Leave();
    const QByteArray whole = ReadFile(Path());
    const QString beside = Folder() + "/";
    WriteFile(beside + "texto", QByteArray(5000, 'x'));
    WriteFile(beside + "vacio", {});
    WriteFile(beside + "cortado", whole.left(whole.size() - 4096));
    WriteFile(beside + "cabecera", whole.left(50));
    QByteArray damaged = whole;
    damaged.replace(110, 3000, QByteArray(3000, '\xA5'));
    WriteFile(beside + "roto", damaged);
    for (const QString& path :
         {QString(), beside, beside + "nada", beside + "texto", beside + "vacio",
          beside + "cortado", beside + "cabecera", beside + "roto", QStringLiteral(":memory:")}) {
        EXPECT_EQ(ErrorOf([&] { StoreConnection::Open(path); }), kErrOpen) << path.toStdString();
    }
    EXPECT_EQ(ErrorOf([&] { StoreConnection::Create(Path()); }), kErrOpen);
    EXPECT_EQ(ErrorOf([&] { StoreConnection::Create(beside + "nada/x"); }), kErrOpen);
    EXPECT_EQ(ReadFile(Path()), whole);
    EXPECT_EQ(ErrorOf([&] { StoreConnection::Open(Path()); }), 0);
}

TEST_F(StoreConnectionTest, ExecutesAllStatementsOrNone) {
    EXPECT_EQ(ErrorOf([&] { Execute("DELETE FROM Products; INSERT INTO Nada VALUES (1)"); }),
              kErrStatement);
    EXPECT_EQ(Rows("SELECT count(*) FROM Products"), "3");
}

TEST_F(StoreConnectionTest, CompactsIntoANewWholeStore) {
    Execute("PRAGMA user_version=7;"
            "WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i+1 FROM n WHERE i<2000)"
            " INSERT INTO Texts SELECT 'Borrado', i, 0, hex(randomblob(200)) FROM n;"
            "DELETE FROM Texts WHERE TableName = 'Borrado'");
    const QString copy = Folder() + "/copia.tmp";
    Connection()->CompactInto(copy);
    EXPECT_FALSE(QFile::exists(copy + ".lck"));
    EXPECT_LT(QFileInfo(copy).size(), QFileInfo(Path()).size() / 10);
    EXPECT_EQ(ErrorOf([&] { Connection()->CompactInto(copy); }), kErrDisk);

    const auto compacted = StoreConnection::Open(copy);
    Recordset rows;
    rows.SetConnection(compacted);
    rows.SetSource("SELECT count(*), (SELECT count(*) FROM Texts) FROM Products");
    rows.Open();
    EXPECT_EQ(rows.Text(0), "3");
    EXPECT_EQ(rows.Text(1), "5");
}

TEST_F(StoreConnectionTest, DamagedStoreLeavesNoCompactedCopy) {
    Execute("WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i+1 FROM n WHERE i<500)"
            " INSERT INTO Texts SELECT 'Lleno', i, 0, hex(randomblob(200)) FROM n");
    Leave();
    QByteArray damaged = ReadFile(Path());
    damaged.replace(damaged.size() / 2 & ~4095, 4096, QByteArray(4096, '\xA5'));
    WriteFile(Path(), damaged);
    Enter();
    const QString copy = Folder() + "/copia.tmp";
    EXPECT_EQ(ErrorOf([&] { Connection()->CompactInto(copy); }), kErrDisk);
    EXPECT_FALSE(QFile::exists(copy));
}

TEST_F(StoreConnectionTest, SeesOtherProcessesAndNotItself) {
    Leave();
    OtherProcess other([&](OtherProcess& parent) {
        const auto opened = StoreConnection::Open(Path());
        parent.Say('o');
        parent.Hear();
    });
    ASSERT_EQ(other.Hear(), 'o');
    Enter();
    const auto second = StoreConnection::Open(Path());
    EXPECT_TRUE(Connection()->OpenElsewhere());
    EXPECT_FALSE(StoreClaim(Path()).Held());
    other.Kill();
    EXPECT_FALSE(Connection()->OpenElsewhere());
    EXPECT_FALSE(second->OpenElsewhere());
    EXPECT_TRUE(StoreClaim(Path()).Held());
}

TEST_F(StoreConnectionTest, AClaimKeepsOtherProcessesOutWhileItLives) {
    Leave();
    OtherProcess other([&](OtherProcess& parent) {
        while (parent.Hear() != 0) {
            const int error = ErrorOf([&] { StoreConnection::Open(Path()); });
            parent.Say(error == 0 ? 'o' : error == kErrOpen ? 'r' : '?');
        }
    });
    const auto ask = [&other] {
        other.Say('?');
        return other.Hear();
    };
    {
        const StoreClaim claim(Path());
        ASSERT_TRUE(claim.Held());
        EXPECT_EQ(ask(), 'r');
        Enter(); // the claimant itself may open and close it
        Leave();
        EXPECT_EQ(ask(), 'r');
        Enter();
    }
    EXPECT_EQ(ask(), 'o');
}

TEST_F(StoreConnectionTest, ReadOnlyStoreCanBeReadAndRefusesWrites) {
    Leave();
    SetMode(Path(), 0444);
    SetMode(Path() + ".lck", 0444); // whose owner could lock its rows
    SetMode(Folder(), 0555);
    OtherProcess other([&](OtherProcess& parent) {
        if (geteuid() == 0 && setuid(kNobody) != 0) { // permissions don't bind root
            return;
        }
        Enter();
        Recordset row = Cursor("SELECT * FROM Products");
        row.Set(u"SaleZone", QString("Soria"));
        const int error = ErrorOf([&] { row.Update(); });
        parent.Say(error == kErrDisk && row.HasPending() ? 'd' : '?');
        Recordset locked = Cursor("SELECT * FROM Products", true);
        parent.Say(ErrorOf([&] { locked.Set(u"SaleZone", QString()); }) == kErrRowLocked ? 'l'
                                                                                         : '?');
    });
    EXPECT_EQ(other.Hear(), 'd');
    EXPECT_EQ(other.Hear(), 'l');
    SetMode(Folder(), 0755);
}
