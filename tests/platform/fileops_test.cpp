#include "platform/fileops.h"

#include "tests/support/files.h"

#include <QDir>
#include <QFile>
#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

// Another file system than the temporary folder's on most machines.
constexpr char kSharedMemory[] = "/dev/shm";

class FileOps : public testing::Test {
protected:
    void SetUp() override {
        QDir(home.path()).mkdir("to");
        for (const char* name : {"a.jpg", "B.JPG", "noext", ".hidden", "c.png", "w[1].jpg"}) {
            WriteFile(home.filePath(name), name);
        }
        QDir(home.path()).mkdir("folder.jpg");
    }

    static QStringList Names(const QString& folder) {
        return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    QString At(const QString& name) const { return home.filePath(name); }

    QTemporaryDir home;
};

} // namespace

TEST_F(FileOps, PatternsTakeFilesWithoutRegardToCase) {
    const std::pair<const char*, QStringList> cases[] = {
        {"*.jpg", {"B.JPG", "a.jpg", "w[1].jpg"}},
        {"*.*", {".hidden", "B.JPG", "a.jpg", "c.png", "noext", "w[1].jpg"}},
        {"?.PNG", {"c.png"}},
        {"w[1]*", {"w[1].jpg"}},
    };
    for (const auto& [pattern, names] : cases) {
        EXPECT_EQ(FileOperation(FileOp::Copy, {At(pattern)}, At("to")), 0) << pattern;
        EXPECT_EQ(Names(At("to")), names) << pattern;
        EXPECT_EQ(FileOperation(FileOp::Delete, {At("to/*.*")}, {}), 0);
    }
}

TEST_F(FileOps, FileNamedLikeAPatternIsItself) {
    WriteFile(At("que?.jpg"), "pregunta");
    WriteFile(At("ques.jpg"), "otro");
    EXPECT_EQ(FileOperation(FileOp::Copy, {At("que?.jpg")}, At("to/Pic1.dat")), 0);
    EXPECT_EQ(ReadFile(At("to/Pic1.dat")), "pregunta");
}

TEST_F(FileOps, FailuresGiveTheSystemsNumberAndLeaveEverything) {
    const QStringList before = Names(home.path());
    EXPECT_EQ(FileOperation(FileOp::Copy, {At("missing")}, At("to")), ENOENT);
    EXPECT_EQ(FileOperation(FileOp::Delete, {At("*.gif")}, {}), ENOENT);
    EXPECT_EQ(FileOperation(FileOp::Delete, {home.path() + '/'}, {}), EISDIR);
    EXPECT_EQ(FileOperation(FileOp::Move, {At("a.jpg")}, At("none/a.jpg")), ENOENT);
    EXPECT_EQ(FileOperation(FileOp::Move, {At("*.png")}, At("newfolder")), ENOTDIR);
    EXPECT_EQ(FileOperation(FileOp::Rename, {At("a.jpg")}, At("to")), EISDIR);
    EXPECT_EQ(Names(home.path()), before);
}

TEST_F(FileOps, CopyReplacesAndRenameAndMoveLeaveNoSource) {
    WriteFile(At("to/a.jpg"), "old and longer than the new one");
    EXPECT_EQ(FileOperation(FileOp::Copy, {At("a.jpg")}, At("to")), 0);
    EXPECT_EQ(ReadFile(At("to/a.jpg")), "a.jpg");
    EXPECT_EQ(FileOperation(FileOp::Copy, {At("to/a.jpg")}, At("to/a.jpg")), 0);
    EXPECT_EQ(ReadFile(At("to/a.jpg")), "a.jpg"); // onto itself
    EXPECT_EQ(FileOperation(FileOp::Rename, {At("to/a.jpg")}, At("to/b.jpg")), 0);
    EXPECT_EQ(FileOperation(FileOp::Move, {At("a.jpg"), At("c.png")}, At("to/")), 0);
    EXPECT_EQ(Names(At("to")), (QStringList{"a.jpg", "b.jpg", "c.png"}));
    EXPECT_FALSE(QFile::exists(At("a.jpg")));
}

TEST_F(FileOps, MoveThatFailsHalfWayTakesBackWhatItMoved) {
    QDir(home.path()).mkpath("to/noext"); // a folder is in the way of the last file
    EXPECT_EQ(FileOperation(FileOp::Move, {At("a.jpg"), At("c.png"), At("noext")}, At("to")),
              EISDIR);
    EXPECT_EQ(ReadFile(At("a.jpg")), "a.jpg");
    EXPECT_EQ(ReadFile(At("c.png")), "c.png");
    EXPECT_EQ(Names(At("to")), QStringList());
}

TEST_F(FileOps, MoveCrossesFileSystemsWithTimeAndMode) {
    struct stat here {};
    struct stat there {};
    const QTemporaryDir other(QString(kSharedMemory) + "/fileops-XXXXXX");
    if (!other.isValid() || ::stat(qPrintable(home.path()), &here) != 0 ||
        ::stat(kSharedMemory, &there) != 0 || here.st_dev == there.st_dev) {
        GTEST_SKIP() << "there is only one file system";
    }
    QFile::setPermissions(At("a.jpg"), QFile::ReadOwner);
    ASSERT_EQ(::stat(qPrintable(At("a.jpg")), &here), 0);
    EXPECT_EQ(FileOperation(FileOp::Move, {At("*.jpg")}, other.path()), 0);
    EXPECT_EQ(Names(other.path()), (QStringList{"B.JPG", "a.jpg", "w[1].jpg"}));
    EXPECT_EQ(ReadFile(other.filePath("B.JPG")), "B.JPG");
    EXPECT_FALSE(QFile::exists(At("a.jpg")));
    ASSERT_EQ(::stat(qPrintable(other.filePath("a.jpg")), &there), 0);
    EXPECT_EQ(there.st_mode, here.st_mode);
    EXPECT_EQ(there.st_mtim.tv_sec, here.st_mtim.tv_sec);
}

TEST_F(FileOps, ReplaceFileKeepsPermissionsAndLinksAndLeavesNoTrace) {
    const auto permissions = QFile::ReadOwner | QFile::ReadUser | QFile::WriteOwner |
                             QFile::WriteUser | QFile::ReadGroup;
    QFile::setPermissions(At("c.png"), permissions);
    ASSERT_TRUE(QFile::link(At("c.png"), At("link")));
    EXPECT_TRUE(ReplaceFile(At("link"), "new"));
    EXPECT_EQ(ReadFile(At("c.png")), "new");
    EXPECT_EQ(QFile::permissions(At("c.png")), permissions);
    EXPECT_TRUE(QFileInfo(At("link")).isSymLink());
    EXPECT_FALSE(ReplaceFile(At("none/file"), "x"));
    EXPECT_FALSE(ReplaceFile(At("folder.jpg"), "x"));
    EXPECT_EQ(Names(home.path()).filter("nuevo"), QStringList());
}
