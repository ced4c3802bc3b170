// From the start of the process until the catalogue screen is ready, and its end.
#pragma once

// The whole start-up in its fixed order. It may end the process: another program runs already, the
// screen is too small, the password dialog was cancelled, the store can't be opened.
void StartProgram();

// Main form's end: validates the reference (which may refuse), saves the product and the settings
// and ends the process.
void EndProgram(bool& cancel);
