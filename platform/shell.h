// Handing documents and addresses to the system's default handlers.
#pragma once

#include <QString>

// Opens a file path or an address. False when the system has no handler or `target` is empty.
bool OpenWithSystem(const QString& target);

// Prints a file through the system. False when the system can't.
bool PrintWithSystem(const QString& path);
