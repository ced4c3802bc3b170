#include "site/steps.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "forms/mainform.h"
#include "text/dates.h"
#include "text/numbers.h"

int StepIndex = 0;

namespace {

constexpr int kStorageFTP = 1;

// Estimates below this part of the whole are too wild to show, percent.
constexpr double kFirstPercent = 5;
// A long estimate counts down between two measurements of this distance, seconds.
constexpr double kMeasureEvery = 5;
constexpr double kLongEstimate = 20;
constexpr double kSecondsShown = 59; // above it, minutes

enum class StepState { ToDo, Current, Done, Failed };

std::array<StepState, kStepCount> states{};

double timerStart = 0;        // seconds of the day: start of the transfer
double timerMark = 0;         // seconds of the day: last estimate
double remainingEstimate = 0; // seconds, the estimate now shown

StepListener stepListener;

QLabel* PictureOf(StepState state) {
    switch (state) {
    case StepState::Current:
        return frmMain->imgCurrentStep;
    case StepState::Done:
        return frmMain->imgDoneStep;
    case StepState::Failed:
        return frmMain->imgFailedStep;
    case StepState::ToDo:
        break;
    }
    return frmMain->imgToDoStep;
}

QString StepText(int step) {
    return frmMain->lblSteps[step]->text();
}

void ShowState(int step, StepState state) {
    if (step >= kStepCount) {
        return;
    }
    const bool changed = states[step] != state;
    states[step] = state;
    QLabel* image = frmMain->imgStep[step];
    image->setPixmap(PictureOf(state)->pixmap(Qt::ReturnByValue));
    image->repaint();

    const bool shown = changed && !frmMain->lblSteps[step]->isHidden();
    if (shown && state == StepState::Current && stepListener.started) {
        stepListener.started(step, StepText(step));
    } else if (shown && (state == StepState::Done || state == StepState::Failed) &&
               stepListener.ended) {
        stepListener.ended(step, StepText(step), state == StepState::Done);
    }
}

void ShowStep(int step, const QString& text) {
    if (StepText(step) != text) {
        states[step] = StepState::ToDo; // what the former step came to says nothing about this one
    }
    frmMain->lblSteps[step]->setText(text);
    frmMain->lblSteps[step]->setVisible(!text.isEmpty());
    frmMain->imgStep[step]->setVisible(!text.isEmpty());
    ShowState(step, states[step]);
}

} // namespace

void SetUpSteps() {
    // The generic trade has no portal.
    const QString portal =
        IsGenericFlavour() ? QString() : QStringLiteral("Sincronizar con %1").arg(VSname);
    ShowStep(0, "Generar el Contenido Web");
    ShowStep(1, "Comprobar y Listar los cambios");
    if (StorageMethod == kStorageFTP) {
        ShowStep(2, "Conectar con el Servidor Web");
        ShowStep(3, "Enviar los Ficheros al Servidor Web");
        ShowStep(4, portal);
    } else {
        ShowStep(2, "Guardar los Ficheros en Carpeta Local");
        ShowStep(3, portal);
        ShowStep(4, {});
    }
}

void ResetSteps() {
    for (int step = 0; step < kStepCount; ++step) {
        ShowState(step, StepState::ToDo);
    }
}

void StartSteps() {
    StepIndex = 0;
    ShowState(StepIndex, StepState::Current);
}

void NextStep() {
    // A failed step keeps its picture until the next run.
    if (StepIndex < kStepCount && states[StepIndex] != StepState::Failed) {
        ShowState(StepIndex, StepState::Done);
    }
    ++StepIndex;
    ShowState(StepIndex, StepState::Current);
}

void StepDone() {
    ShowState(StepIndex, StepState::Done);
}

void StepFailed() {
    ShowState(StepIndex, StepState::Failed);
}

void EndSteps() {
    if (StepIndex < kStepCount && states[StepIndex] == StepState::Current) {
        StepFailed();
    }
}

bool AnyStepFailed() {
    return std::find(states.begin(), states.end(), StepState::Failed) != states.end();
}

void SetProgress(int value, int maximum, int minimum, int bar) {
    QProgressBar* progress = frmMain->prbProgress[bar];
    progress->setRange(minimum, maximum);
    progress->setValue(value);
}

void ResetTimeRemaining() {
    timerStart = SecondsOfDay();
    timerMark = timerStart;
    remainingEstimate = 0;
}

QString TimeRemaining(double sent, double total) {
    if (sent == 0) {
        return {};
    }
    const double now = SecondsOfDay();
    const double speed = sent / (now - timerStart);
    const double remaining = (total - sent) / speed;
    if (sent / total * 100 < kFirstPercent) {
        return "Calculando...";
    }
    if (remainingEstimate == 0) {
        remainingEstimate = remaining;
    }
    double shown = remaining;
    if (now - timerMark < kMeasureEvery && remainingEstimate > kLongEstimate) {
        shown = remainingEstimate - (now - timerMark);
    } else {
        remainingEstimate = remaining;
        timerMark = now;
    }
    const double seconds = RoundHalfEven(shown);
    if (seconds <= kSecondsShown) {
        return QString::number(seconds, 'f', 0) + " segundos";
    }
    return QString::number(RoundHalfEven(shown / 60), 'f', 0) + " minuto(s) ";
}

void ListenToSteps(const StepListener& listener) {
    stepListener = listener;
}
