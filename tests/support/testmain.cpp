// Every test program starts here: off the screen, with Spanish numbers and dates, and with folders
// of its own in place of the user's, so that no test sees or changes anybody's settings.
#include "platform/notify.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", (home.path() + "/config").toUtf8());
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    qputenv("LC_ALL", "es_ES.UTF-8");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts); // as the program does
    Application application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
