#include "core/startup.h"
#include "platform/dialogs.h"
#include "platform/notify.h"

int main(int argc, char** argv) {
    Application application(argc, argv);
    LoadToolkitTexts();
    StartProgram();
    return Application::exec();
}
