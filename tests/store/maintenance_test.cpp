#include "store/maintenance.h"

#include "core/settings.h"
#include "engine/storeengine.h"
#include "store/store.h"
#include "tests/support/catalogue.h"
#include "tests/support/files.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <gtest/gtest.h>

namespace {

constexpr int kLimit = 10000; // milliseconds for another process to answer

QString Products() {
    RunQuery(kCursorScratch, "SELECT count(*) FROM Products");
    return adcData[kCursorScratch].Text(0);
}

// The program in another process, on the same store, until it is killed.
class Colleague {
public:
    explicit Colleague(const QString& folder) {
        process.start(COLLEAGUE, {folder});
        EXPECT_TRUE(process.waitForStarted(kLimit) && process.waitForReadyRead(kLimit));
        EXPECT_EQ(process.readLine(), "ready\n");
    }
    ~Colleague() {
        process.kill();
        process.waitForFinished(kLimit);
    }

private:
    QProcess process;
};

// A catalogue of one product, closed.
class Maintenance : public testing::Test {
protected:
    Maintenance() { CloseStore(); }

    TestCatalogue catalogue{"product; 10001; A-1; 10; 0; Norte; 2024-01-01T10:00:00"};
    QString store = catalogue.Folder() + DBname;
};

} // namespace

TEST_F(Maintenance, CompactingKeepsTheOldFileAndReplacesWhatEarlierRunsLeft) {
    WriteFile(store + ".tmp", "stale");
    WriteFile(store + ".bak", "older");
    const QByteArray before = ReadFile(store);
    EXPECT_EQ(CompactStore(store), 0);
    EXPECT_EQ(ReadFile(store + ".bak"), before);
    EXPECT_FALSE(QFile::exists(store + ".tmp"));
    ASSERT_EQ(OpenStore(), 0);
    EXPECT_EQ(Products(), "1");
}

TEST_F(Maintenance, ADamagedStoreIsLeftAsItIsWithItsBackup) {
    QByteArray damaged = ReadFile(store);
    damaged.replace(4096, damaged.size() - 4096, QByteArray(damaged.size() - 4096, '\x5a'));
    WriteFile(store, damaged);
    WriteFile(store + ".bak", "older");
    EXPECT_NE(CompactStore(store), 0);
    EXPECT_EQ(ReadFile(store), damaged);
    EXPECT_EQ(ReadFile(store + ".bak"), "older");
    EXPECT_FALSE(QFile::exists(store + ".tmp"));
    EXPECT_NE(CompactStore(catalogue.Folder() + "otra.zdb"), 0);
}

TEST_F(Maintenance, ACompactionCutOffBeforeItsLastStepIsEndedWhenTheStoreIsOpened) {
    ASSERT_TRUE(QFile::copy(store, store + ".tmp"));
    ASSERT_TRUE(QFile::rename(store, store + ".bak"));
    ASSERT_EQ(OpenStore(), 0);
    EXPECT_EQ(Products(), "1");
}

TEST_F(Maintenance, BothAreRefusedWhileAnotherProcessHasTheStoreOpen) {
    const Colleague colleague(catalogue.Folder());
    const QByteArray before = ReadFile(store);
    const QStringList files = QDir(DBpath).entryList(QDir::Files);
    const QTemporaryDir target;
    EXPECT_EQ(CompactStore(store), kErrBusy);
    EXPECT_EQ(MoveStoreFiles(target.path()), MoveResult::InUse);
    EXPECT_EQ(ReadFile(store), before);
    EXPECT_EQ(QDir(DBpath).entryList(QDir::Files), files);
    EXPECT_EQ(DBpath, catalogue.Folder());
}
