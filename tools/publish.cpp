// The program without its window, for servers and scheduled runs: the same settings, the same
// start-up, the same button. Steps and outcome go to the terminal; the exit code is 0 only if the
// site reached its destination.

#include "app/startup.h"
#include "app/workflow.h"
#include "core/settings.h"
#include "forms/mainform.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/notify.h"
#include "platform/process.h"
#include "site/outputs.h"
#include "site/steps.h"

#include <QFileInfo>
#include <cstdio>

namespace {

// Steps that bring the site to its destination; what follows them is the portal's.
constexpr int kFolderSteps = 3;
constexpr int kFTPSteps = 4;

// Written by PrintStep: a step up to the delivery has failed. A file that could not be sent leaves
// the run itself a success, as the button has it.
bool siteStepFailed = false;

void PrintLine(std::FILE* stream, const QString& line) {
    std::fputs((line + "\n").toUtf8().constData(), stream);
    std::fflush(stream);
}

void PrintStep(int index, StepState state) {
    const QString line = QStringLiteral("%1. %2").arg(index + 1).arg(StepText(index));
    switch (state) {
    case StepState::ToDo:
        break;
    case StepState::Current:
        PrintLine(stdout, line + "...");
        break;
    case StepState::Done:
        PrintLine(stdout, line + ": hecho");
        break;
    case StepState::Failed:
        PrintLine(stdout, line + ": ERROR");
        siteStepFailed =
            siteStepFailed || index < (StorageMethod == kStorageFTP ? kFTPSteps : kFolderSteps);
        break;
    }
}

QString Destination() {
    return StorageMethod == kStorageFTP ? "ftp://" + FTPServer + FTPPath
                                        : StoragePath + "index.html";
}

// What the toolkit murmurs about windows that nobody sees doesn't belong on the terminal.
void DropToolkitWarnings(QtMsgType type, const QMessageLogContext& /*context*/,
                         const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        PrintLine(stderr, text);
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 1) { // the toolkit would take options of its own for itself
        PrintLine(stderr,
                  "publish no admite opciones: publica según la configuración del usuario.");
        return EXIT_FAILURE;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(DropToolkitWarnings);
    Application application(argc, argv);
    SetUnattended();
    LoadToolkitTexts();
    StartProgram();
    if (!QFileInfo(TemplPath).isFile()) {
        PrintLine(stderr, "No existe la plantilla de diseño " + TemplPath);
    }
    SetUpSteps();
    ListenToPublish({.step = PrintStep});
    cmdUpdateWeb_Click(kPublishUpdate);
    if (LastOutcome != PublishOutcome::Delivered || siteStepFailed) {
        PrintLine(stderr, "La web no se ha publicado: " + Destination());
        EndProcess(EXIT_FAILURE);
    }
    PrintLine(stdout, "La web se ha publicado: " + Destination());
    EndProcess(EXIT_SUCCESS);
}
