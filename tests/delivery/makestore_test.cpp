#include "tests/support/files.h"
#include "tests/support/userhome.h"

#include <QDir>
#include <gtest/gtest.h>

namespace {

class MakeStore : public testing::Test {
protected:
    QString Write(const QString& name, const QByteArray& bytes) {
        return WriteFile(folder.filePath(name), bytes);
    }

    // The exit code; what the tool said is kept.
    int Run(const QStringList& files) {
        const ToolRun run = RunTool(MAKESTORE, QStringList{store} + files);
        said = run.complaint;
        return run.code;
    }

    QTemporaryDir folder;
    QString store = folder.filePath("Zandora.zdb");
    QString said;
};

} // namespace

TEST_F(MakeStore, LeavesNothingWhereAFileFailsAndNamesIt) {
    const QString good = Write("good.sql", "CREATE TABLE T (A TEXT COLLATE SPANISH);");
    const QStringList bad = {
        Write("table.sql", "INSERT INTO Nada VALUES (1);"),
        Write("half.sql", "INSERT INTO T VALUES ('"),
        Write("latin.sql", "INSERT INTO T VALUES ('\xf1');"),
        folder.filePath("missing.sql"),
    };
    const QStringList before = QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden);
    for (const QString& file : bad) {
        EXPECT_EQ(Run({good, file}), 1);
        EXPECT_TRUE(said.contains(file)) << said.toStdString();
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden), before);
}

TEST_F(MakeStore, NeverTouchesAStoreThatExists) {
    Write("Zandora.zdb", "a user's catalogue");
    EXPECT_EQ(Run({Write("good.sql", "CREATE TABLE T (A TEXT);")}), 1);
    EXPECT_EQ(ReadFile(store), "a user's catalogue");
}
