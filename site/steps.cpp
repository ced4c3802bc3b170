#include "site/steps.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "text/dates.h"
#include "text/numbers.h"

#include <algorithm>
#include <array>

int StepIndex = 0;

namespace {

// Estimates below this part of the whole are too wild to show, percent.
constexpr double kFirstPercent = 5;
// A long estimate counts down between two measurements of this distance, seconds.
constexpr double kMeasureEvery = 5;
constexpr double kLongEstimate = 20;
constexpr double kSecondsShown = 59; // above it, minutes

struct Step {
    QString text;
    StepState state = StepState::ToDo;
};
std::array<Step, kStepCount> steps;
int portalStep = kStepCount - 1;

double timerStart = 0;        // seconds of the day: start of the transfer
double timerMark = 0;         // seconds of the day: last estimate
double remainingEstimate = 0; // seconds, the estimate now shown

PublishListener listener;

void SetState(int index, StepState state) {
    if (index >= kStepCount) {
        return;
    }
    Step& step = steps.at(index);
    const bool changed = step.state != state;
    step.state = state;
    if (changed && !step.text.isEmpty() && listener.step != nullptr) {
        listener.step(index, state);
    }
}

// What a former step came to says nothing about one with another text.
void SetText(int index, const QString& text) {
    if (steps.at(index).text != text) {
        steps.at(index) = {text, StepState::ToDo};
    }
}

} // namespace

void SetUpSteps() {
    // The generic trade has no portal.
    const QString portal =
        IsGenericFlavour() ? QString() : QStringLiteral("Sincronizar con %1").arg(VSname);
    QStringList texts = {"Generar el Contenido Web", "Comprobar y Listar los cambios"};
    if (StorageMethod == kStorageFTP) {
        texts << "Conectar con el Servidor Web"
              << "Enviar los Ficheros al Servidor Web";
    } else {
        texts << "Guardar los Ficheros en Carpeta Local";
    }
    portalStep = static_cast<int>(texts.size());
    texts << portal;
    for (int step = 0; step < kStepCount; ++step) {
        SetText(step, texts.value(step));
    }
}

int PortalStep() {
    return portalStep;
}

QString StepText(int step) {
    return steps.at(step).text;
}

StepState StateOfStep(int step) {
    return steps.at(step).state;
}

void ResetSteps() {
    for (int step = 0; step < kStepCount; ++step) {
        SetState(step, StepState::ToDo);
    }
}

void StartSteps() {
    StepIndex = 0;
    SetState(StepIndex, StepState::Current);
}

void NextStep() {
    // A failed step stays marked until the next run.
    if (StepIndex < kStepCount && StateOfStep(StepIndex) != StepState::Failed) {
        SetState(StepIndex, StepState::Done);
    }
    ++StepIndex;
    SetState(StepIndex, StepState::Current);
}

void StepDone() {
    SetState(StepIndex, StepState::Done);
}

void StepFailed() {
    SetState(StepIndex, StepState::Failed);
}

void EndSteps() {
    if (StepIndex < kStepCount && StateOfStep(StepIndex) == StepState::Current) {
        StepFailed();
    }
}

bool AnyStepFailed() {
    return std::any_of(steps.begin(), steps.end(), [](const Step& step) {
        return step.state == StepState::Failed && !step.text.isEmpty();
    });
}

bool SiteStepFailed() {
    return std::any_of(steps.begin(), steps.begin() + portalStep,
                       [](const Step& step) { return step.state == StepState::Failed; });
}

void SetProgress(int value, int maximum, int minimum, int bar) {
    if (listener.progress != nullptr) {
        listener.progress(value, maximum, minimum, bar);
    }
}

void SetOverallProgress(int value) {
    SetProgress(value, kAllTasks, 0, kBarAllTasks);
}

void ReportActivity(const QString& text) {
    if (listener.activity != nullptr) {
        listener.activity(text);
    }
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

void ReportRemaining(const QString& text) {
    if (listener.remaining != nullptr) {
        listener.remaining(text);
    }
}

void ListenToPublish(const PublishListener& newListener) {
    listener = newListener;
}
