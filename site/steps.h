// What the user watches during a publish: the list of steps, two progress bars and the remaining
// time. Every stage that takes long calls it; none of them looks at it.
#pragma once

#include <QString>

inline constexpr int kStepCount = 5;

// Index of the step now current in the visible list. Written here alone.
extern int StepIndex;

// Texts of the steps by storage method and flavour. Called when the page is refreshed: the states
// of the last run stay, unless its steps were others.
void SetUpSteps();

void ResetSteps(); // every step to do
void StartSteps(); // the first one current
void NextStep();   // the current one done, the next one current
void StepDone();   // the current one done, without moving
void StepFailed(); // the current one failed, without moving
void EndSteps();   // of a run that came to nothing: a step still current has failed
bool AnyStepFailed();

// Value and range of one bar: 0 the task now running, 1 all tasks (0 to 10).
void SetProgress(int value, int maximum, int minimum, int bar);

// Start of a transfer's time estimate.
void ResetTimeRemaining();

// Text of the remaining time after `sent` of `total` bytes; empty when nothing is sent.
QString TimeRemaining(double sent, double total);

// For runs without a window: told of each step that starts (index, text) and each that ends (true:
// done).
struct StepListener {
    void (*started)(int index, const QString& text) = nullptr;
    void (*ended)(int index, const QString& text, bool done) = nullptr;
};
void ListenToSteps(const StepListener& listener);
