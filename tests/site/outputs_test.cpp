#include "site/outputs.h"

#include "core/settings.h"
#include "tests/support/files.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace {

void Add(const QString& name, const QByteArray& data) {
    AddOutputFile({name, {}, {}, false, data});
}

class Outputs : public testing::Test {
protected:
    void SetUp() override {
        LoadSettings();
        SetStoreFolder(store.path());
        ClearOutputFiles();
    }

    QString Path(const QString& name) const { return out.filePath(name); }

    QTemporaryDir store;
    QTemporaryDir out;
};

} // namespace

TEST_F(Outputs, LaterFilesOverwriteEarlierOnesAndStrangersStay) {
    const QString folder = Path("site/");
    QDir().mkdir(folder);
    WriteFile(folder + "old.html", "old");
    QFile::link(Path("outside"), folder + "año.html");
    Add("", "gives its place to the next");
    Add("a.html             ", "first");
    Add("año.html", "año");
    Add("   ", "no name, no file");
    Add("a.html", QByteArray("\0x", 2));
    EXPECT_EQ(OutputFiles.size(), 4u);
    EXPECT_TRUE(SaveOutputFiles(folder));
    EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList({"a.html", "año.html", "old.html"}));
    EXPECT_EQ(ReadFile(folder + "a.html"), QByteArray("\0x", 2));
    EXPECT_EQ(ReadFile(folder + "año.html"), "año");
    EXPECT_FALSE(QFile::exists(Path("outside"))); // a link is replaced, never followed
}

TEST_F(Outputs, FolderIsMadeOneLevelDeep) {
    Add("a.html", "a");
    EXPECT_FALSE(SaveOutputFiles(Path("one/two/")));
    EXPECT_FALSE(QFile::exists(Path("one")));
    EXPECT_TRUE(SaveOutputFiles(Path("one/")));
    EXPECT_EQ(ReadFile(Path("one/a.html")), "a");
}

TEST_F(Outputs, ReadOnlyFileEndsTheSaveThere) {
    QFile::setPermissions(WriteFile(Path("b.html"), "kept"), QFile::ReadOwner);
    Add("a.html", "a");
    Add("b.html", "b");
    Add("c.html", "c");
    EXPECT_FALSE(SaveOutputFiles(out.path()));
    EXPECT_EQ(ReadFile(Path("a.html")), "a");
    EXPECT_EQ(ReadFile(Path("b.html")), "kept");
    EXPECT_FALSE(QFile::exists(Path("c.html")));
}

TEST_F(Outputs, NamesThatWouldLeaveTheFolderOrOverwriteTheCatalogueFail) {
    const QString table =
        "names of files, and whether they are saved in a folder and the catalogue's";
    for (const QStringList& row : ReadTable(TABLES, table)) {
        ClearOutputFiles();
        Add(row[0], "data");
        EXPECT_EQ(SaveOutputFiles(out.path()), row[1] == "yes") << row[0].toStdString();
        EXPECT_EQ(SaveOutputFiles(store.path() + "/."), row[2] == "yes") << row[0].toStdString();
    }
    EXPECT_EQ(QDir(store.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList({".htaccess", "Centro..html"}));
}
