// A second start that raises the first, and one after a crash, are tested with whole programs.
#include "platform/instance.h"

#include "tests/support/otherprocess.h"

#include <QDir>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <gtest/gtest.h>

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
    const OtherProcess other([](OtherProcess& parent) {
        while (parent.Hear() != 0) {
            parent.Say(ClaimInstance() ? 'h' : 'r');
        }
    });
    EXPECT_TRUE(ClaimInstance());
    const QFileInfoList places = QDir(home.path()).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
    ASSERT_EQ(places.size(), 1);
    EXPECT_EQ(places[0].permissions() &
                  (QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther),
              QFile::Permissions());
    other.Say('?');
    EXPECT_EQ(other.Hear(), 'r');
    ReleaseInstance();
    other.Say('?');
    EXPECT_EQ(other.Hear(), 'h');
}
