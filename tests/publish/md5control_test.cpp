#include "publish/md5control.h"

#include "core/settings.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QByteArray kHashA(32, 'a');
const QByteArray kHashB(32, 'b');

// A store's folder of its own, with or without a control file.
class ControlFile : public testing::Test {
protected:
    void SetUp() override {
        SetStoreFolder(folder.path() + "/");
        ResetControlFile();
    }

    void Write(const QByteArray& bytes) {
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray Bytes() const {
        QFile file(Path());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    static QByteArray Record(const QByteArray& name, const QByteArray& hash) {
        return name.leftJustified(60, ' ') + hash + "\r\n";
    }

    QString Path() const { return folder.path() + "/md5control.txt"; }

    QTemporaryDir folder;
};

} // namespace

TEST_F(ControlFile, IsCreatedOnFirstUseAndEverythingCountsAsChanged) {
    EXPECT_FALSE(IsFileUnchanged("index.html", kHashA));
    EXPECT_EQ(Bytes(), "");
}

TEST_F(ControlFile, KeepsEachFileSentAtOnce) {
    RecordFileSent("index.html ", kHashA);
    RecordFileSent("año.html", kHashB);
    EXPECT_EQ(Bytes(), Record("index.html", kHashA) + Record("a\xF1o.html", kHashB));
    EXPECT_TRUE(IsFileUnchanged("index.html", kHashA));
    EXPECT_FALSE(IsFileUnchanged("index.html", kHashB));
    EXPECT_FALSE(IsFileUnchanged("INDEX.HTML", kHashA));
}

TEST_F(ControlFile, UpdatesTheRecordOfAKnownName) {
    Write(Record("a.html", kHashA) + Record("b.html", kHashA));
    RecordFileSent("b.html", kHashB);
    EXPECT_EQ(Bytes(), Record("a.html", kHashA) + Record("b.html", kHashB));
}

TEST_F(ControlFile, ReadsWholeRecordsOnly) {
    Write(Record("a.html", kHashA) + Record("b.html", kHashA).left(70));
    EXPECT_TRUE(IsFileUnchanged("a.html", kHashA));
    EXPECT_FALSE(IsFileUnchanged("b.html", kHashA));
}

TEST_F(ControlFile, NeverMatchesANameOfMoreThanSixtyCharacters) {
    const QString name = QString(61, u'n');
    RecordFileSent(name, kHashA);
    EXPECT_FALSE(IsFileUnchanged(name, kHashA));
    RecordFileSent(name, kHashA);
    EXPECT_EQ(Bytes().size(), 2 * 94);
}

// Updating a known entry drops the later ones from memory when the next new name comes; they stay
// in the file.
TEST_F(ControlFile, ForgetsLaterEntriesAfterAnUpdateAndAppendsThemAgain) {
    Write(Record("a.html", kHashA) + Record("b.html", kHashA) + Record("c.html", kHashA));
    RecordFileSent("a.html", kHashB);
    RecordFileSent("new.html", kHashB);
    EXPECT_FALSE(IsFileUnchanged("c.html", kHashA));
    RecordFileSent("c.html", kHashB);
    EXPECT_EQ(Bytes(), Record("a.html", kHashB) + Record("b.html", kHashA) +
                           Record("c.html", kHashA) + Record("new.html", kHashB) +
                           Record("c.html", kHashB));
    ResetControlFile();
    EXPECT_TRUE(IsFileUnchanged("c.html", kHashA));
    EXPECT_TRUE(IsFileUnchanged("c.html", kHashB));
}

// After a load of n records the first new entry takes index n + 1 of the table but record n of the
// file, so that its update writes behind the end of the file.
TEST_F(ControlFile, UpdatesByTableIndexEvenWhereRecordNumbersHaveParted) {
    Write(Record("a.html", kHashA));
    RecordFileSent("new.html", kHashA);
    RecordFileSent("new.html", kHashB);
    const QByteArray bytes = Bytes();
    EXPECT_EQ(bytes.left(188), Record("a.html", kHashA) + Record("new.html", kHashA));
    EXPECT_EQ(bytes.mid(188), Record("new.html", kHashB));
}

TEST_F(ControlFile, RaisesAnErrorForTheUserWhenItCannotBeOpened) {
    ASSERT_TRUE(QDir(folder.path()).mkdir("md5control.txt"));
    EXPECT_THROW(IsFileUnchanged("a.html", kHashA), std::runtime_error);
}
