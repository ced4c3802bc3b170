// Yielding to the event loop. The program has one thread: long work yields at fixed points, and
// that is how repainting, the cancel button, transfers and sockets get their turn.
#pragma once

class QWidget;

// Serves pending events, at most once in kServeInterval: called after each row or file it costs
// next to nothing, and nothing is repainted more often than an eye can see.
void DoEvents();

// Serves pending events at once, whatever was served before: where the display has to be up to
// date.
void ServeEvents();

// For polling loops: sleeps until an event arrives or `milliseconds` have passed, then serves.
void WaitForEvents(int milliseconds = 100);

// While one lives, DoEvents and ServeEvents leave the user's keys and clicks in the queue, and they
// are served afterwards: for the middle of a load or a save, where the boxes and the rows must not
// change. Message boxes and dialogs take their input as always. May be nested.
class InputHold {
public:
    InputHold();
    ~InputHold();
    InputHold(const InputHold&) = delete;
    InputHold& operator=(const InputHold&) = delete;
};
bool InputIsHeld();

// Between two servings by DoEvents, milliseconds.
inline constexpr int kServeInterval = 40;
