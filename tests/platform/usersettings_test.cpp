#include "platform/usersettings.h"

#include "tests/support/files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace {

constexpr char kApplication[] = "Catálogo";

class UserSettings : public testing::Test {
protected:
    void SetUp() override { QDir(Folder()).removeRecursively(); }

    static QString Folder() { return QFileInfo(SettingsPath(kApplication)).path(); }

    static void WriteByHand(const QByteArray& bytes) {
        QDir().mkpath(Folder());
        WriteFile(SettingsPath(kApplication), bytes);
    }

    // A file in settings.txt.
    static QList<QByteArray> Lines(const QString& name) {
        QList<QByteArray> lines;
        for (const QStringList& row : ReadTable(TEXTS, name)) {
            lines += row[0].toUtf8();
        }
        return lines;
    }

    static QByteArray Content(const QString& name = "settings.ini") {
        return ReadFile(Folder() + '/' + name);
    }
};

} // namespace

TEST_F(UserSettings, AnyTextComesBackAsWritten) {
    for (const QStringList& row : ReadTable(TEXTS, "texts of settings")) {
        const QString& text = row[0];
        SaveSetting(kApplication, "Params", "Value", text);
        SaveSetting(kApplication, "Params", "After", "next");
        EXPECT_EQ(GetSetting(kApplication, "Params", "Value", "missing"), text)
            << Content().toStdString();
        EXPECT_EQ(GetSetting(kApplication, "Params", "After"), "next");
    }
}

TEST_F(UserSettings, FileWrittenByHandReadsAsExpectedAndKeepsItsLines) {
    WriteByHand("\xEF\xBB\xBF" + Lines("file written by hand").join("\r\n"));
    for (const QStringList& row : ReadTable(TEXTS, "what is read of it")) {
        EXPECT_EQ(GetSetting(kApplication, row[0], row[1], "default"), row[2])
            << row[1].toStdString();
    }
    SaveSetting(kApplication, "PARAMS", "FTPPASS", "x");
    SaveSetting(kApplication, "Params", "DBname", "y");
    EXPECT_EQ(Content().replace("\r", "").split('\n'), Lines("the file with two values changed"));
}

TEST_F(UserSettings, DamagedFileIsSetAsideBeforeTheFirstWrite) {
    const QByteArray damaged[] = {QByteArray("[Params]\n\0\0", 11), "[Params]\nkey=\xF1\n",
                                  "key=value\n"};
    int number = 0;
    for (const QByteArray& bytes : damaged) {
        WriteByHand(bytes);
        EXPECT_EQ(GetSetting(kApplication, "Params", "key", "default"), "default");
        EXPECT_EQ(Content(), bytes); // reading leaves it alone
        BeginSettings();
        SaveSetting(kApplication, "Params", "key", "1");
        SaveSetting(kApplication, "Params", "other", "2");
        CommitSettings();
        EXPECT_EQ(Content("settings.ini.dañado-" + QString::number(++number)), bytes);
        EXPECT_EQ(Content(), "[Params]\nkey=1\nother=2\n");
    }
}

TEST_F(UserSettings, FileIsReadableByItsUserAlone) {
    constexpr auto kUserOnly =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    SaveSetting(kApplication, "Params", "FTPPass", "secreto");
    EXPECT_EQ(QFile::permissions(SettingsPath(kApplication)), kUserOnly);
    WriteByHand("[Params]\n");
    QFile::setPermissions(SettingsPath(kApplication), QFile::ReadOther | kUserOnly);
    SaveSetting(kApplication, "Params", "FTPPass", "secreto");
    EXPECT_EQ(QFile::permissions(SettingsPath(kApplication)), kUserOnly);
    EXPECT_EQ(QDir(Folder()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(UserSettings, ApplicationsNameNeverLeavesTheSettingsFolder) {
    for (const char* name : {"../otro", "..", "", "a/b"}) {
        const QString path = QDir::cleanPath(SettingsPath(name));
        EXPECT_EQ(QFileInfo(QFileInfo(path).path()).path(), QFileInfo(Folder()).path()) << name;
    }
}
