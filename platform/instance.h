// One running program per user: the second start brings the first one's window to the front and
// ends.
#pragma once

#include <QString>
#include <functional>

// Takes the place of the user's one running program. False when another process holds it; the place
// is free again when the process ends, however it ends.
bool ClaimInstance();

// Asks the running program to show itself. False when it didn't answer within two seconds.
bool RaiseRunningInstance();

// What the running program does when another start asks for it: restore and raise its window.
void OnRaiseRequest(std::function<void()> raise);

// Frees the place at once (the process's end does it too).
void ReleaseInstance();
