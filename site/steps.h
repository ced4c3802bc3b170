// What the user follows during a publish: the list of steps, two progress bars, what is going on
// and the remaining time. Every stage that takes long calls it; none of them knows who looks. Owns
// StepIndex.
#pragma once

#include <QString>

inline constexpr int kStepCount = 5;

enum class StepState { ToDo, Current, Done, Failed };

// Index of the step now current in the visible list; kStepCount behind the last one. 0 at start.
extern int StepIndex;

// Texts of the steps by storage method and flavour. Called when the page is refreshed: the states
// of the last run stay, unless its steps were others.
void SetUpSteps();

QString StepText(int step); // empty: the run has no such step
StepState StateOfStep(int step);

// Index of the portal's step, the last one of every run; those before it bring the site to its
// destination. A trade without a portal doesn't show it.
int PortalStep();

void ResetSteps();     // every step to do
void StartSteps();     // the first one current
void NextStep();       // the current one done, the next one current
void StepDone();       // the current one done, without moving
void StepFailed();     // the current one failed, without moving
void EndSteps();       // of a run that came to nothing: a step still current has failed
bool AnyStepFailed();  // of those that are shown
bool SiteStepFailed(); // of those that bring the site to its destination

// The bars, by their index on the page.
enum ProgressBar { kBarTask = 0, kBarAllTasks = 1 };
inline constexpr int kAllTasks = 10; // range of the second one

void SetProgress(int value, int maximum, int minimum, int bar);

// The bar of all tasks, 0 to kAllTasks.
void SetOverallProgress(int value);

// What is being done, as the user reads it.
void ReportActivity(const QString& text);

// Start of a transfer's time estimate.
void ResetTimeRemaining();

// Text of the remaining time after `sent` of `total` bytes; empty when nothing is sent.
QString TimeRemaining(double sent, double total);
void ReportRemaining(const QString& text);

// Who is told of all this as it happens: the page or, without a window, the terminal. What is null
// is not told.
struct PublishListener {
    void (*step)(int step, StepState state) = nullptr; // a step of this run is in another state
    void (*progress)(int value, int maximum, int minimum, int bar) = nullptr;
    void (*activity)(const QString& text) = nullptr;
    void (*remaining)(const QString& text) = nullptr;
};

// One at a time; an empty one ends it.
void ListenToPublish(const PublishListener& newListener);
