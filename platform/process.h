// The end of the program.
#pragma once

// Ends the process at once, wherever it is: no window is closed and nothing is saved. What must be
// kept was saved before.
[[noreturn]] void EndProcess(int exitCode);
