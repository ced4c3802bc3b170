// Handing documents and addresses to the system's default handlers. Nothing is handed over in
// unattended runs.
#pragma once

#include <QString>

// Opens a file path or an address, which reaches the handler as it stands. False when the system
// has no handler, the file is missing or `target` is empty.
bool OpenWithSystem(const QString& target);

// Prints a file on the system's default printer; a web page is laid out first. False when the
// system can't.
bool PrintWithSystem(const QString& path);
