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
#include "portal/pool.h"
#include "portal/session.h"
#include "site/outputs.h"
#include "site/steps.h"

#include <QFileInfo>
#include <cstdio>

namespace {

// For a request to the portal that still goes out when the run is over: milliseconds.
constexpr int kPortalEnd = 60'000;

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
    FinishPortal(kPortalEnd);
    if (!PortalProblem.isEmpty() && !StepText(PortalStep()).isEmpty()) {
        PrintLine(stderr, PortalProblem);
    }
    // A file that could not be sent leaves the run itself a success, as the button has it.
    if (LastOutcome != PublishOutcome::Delivered || SiteStepFailed()) {
        PrintLine(stderr, "La web no se ha publicado: " + Destination());
        EndProcess(EXIT_FAILURE);
    }
    PrintLine(stdout, "La web se ha publicado: " + Destination());
    EndProcess(EXIT_SUCCESS);
}
