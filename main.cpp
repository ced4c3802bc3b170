#include "app/startup.h"
#include "platform/dialogs.h"
#include "platform/notify.h"

int main(int argc, char** argv) {
    // The embedded browser, which is loaded later, can't do without.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    Application application(argc, argv);
    LoadToolkitTexts();
    StartProgram();
    return Application::exec();
}
