#include "platform/instance.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>

namespace {

constexpr int kPatience = 10000; // milliseconds

// Another process of the program, started as far as its first line.
class OtherProgram {
public:
    OtherProgram() {
        process.start(QCoreApplication::applicationDirPath() + "/instanceholder", QStringList());
    }
    ~OtherProgram() {
        process.closeWriteChannel();
        process.waitForFinished(kPatience);
    }

    QByteArray NextLine() {
        while (!process.canReadLine() && process.waitForReadyRead(kPatience)) {
        }
        return process.readLine().trimmed();
    }

    void Kill() {
        process.kill();
        process.waitForFinished(kPatience);
    }

private:
    QProcess process;
};

} // namespace

TEST(Instance, SecondProcessIsRefusedAndRaisesTheFirst) {
    OtherProgram first;
    ASSERT_EQ(first.NextLine(), "held");
    EXPECT_FALSE(ClaimInstance());
    EXPECT_TRUE(RaiseRunningInstance());
    EXPECT_EQ(first.NextLine(), "raised");
    OtherProgram third;
    EXPECT_EQ(third.NextLine(), "refused");
}

TEST(Instance, KilledProcessFreesThePlaceAndItsSocketIsReplaced) {
    OtherProgram first;
    ASSERT_EQ(first.NextLine(), "held");
    first.Kill();
    OtherProgram second;
    ASSERT_EQ(second.NextLine(), "held");
    EXPECT_TRUE(RaiseRunningInstance());
    EXPECT_EQ(second.NextLine(), "raised");
}

TEST(Instance, PlaceIsOneWithoutARuntimeFolderToo) {
    const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
    const QByteArray temporary = qgetenv("TMPDIR");
    const auto restore = qScopeGuard([&] {
        qputenv("XDG_RUNTIME_DIR", runtime);
        temporary.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporary);
    });
    const QTemporaryDir home;
    qputenv("TMPDIR", home.path().toUtf8());
    qunsetenv("XDG_RUNTIME_DIR");
    EXPECT_TRUE(ClaimInstance());
    const QFileInfoList places = QDir(home.path()).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
    ASSERT_EQ(places.size(), 1);
    EXPECT_EQ(places[0].permissions() &
                  (QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther),
              QFile::Permissions());
    {
        OtherProgram other;
        EXPECT_EQ(other.NextLine(), "refused");
    }
    ReleaseInstance();
    OtherProgram other;
    EXPECT_EQ(other.NextLine(), "held");
}
