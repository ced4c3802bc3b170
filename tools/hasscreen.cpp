// Exits with 0 if a window can be shown: a screen may be named in the environment and be gone.

#include <QGuiApplication>
#include <unistd.h>

namespace {

// The toolkit's way of ending would leave a crash behind.
void EndWithoutScreen(QtMsgType type, const QMessageLogContext& /*context*/,
                      const QString& /*text*/) {
    if (type == QtFatalMsg) {
        _exit(EXIT_FAILURE);
    }
}

} // namespace

int main(int argc, char** argv) {
    qInstallMessageHandler(EndWithoutScreen);
    const QGuiApplication application(argc, argv);
    return QGuiApplication::primaryScreen() != nullptr ? EXIT_SUCCESS : EXIT_FAILURE;
}
