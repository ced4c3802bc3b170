// The rule that a process-wide value is written by its owner alone, checked on the sources' text.
#pragma once

#include "housecheck.h"

// For each line outside a value's own source that writes it, "file:line writes VALUE of header". A
// value is what a header declares extern and not const. Writing is an assignment, ++ and --, to the
// value or a part of it, a call of a changing member of a container or text, a move out of it, and
// its address or a reference that is not const. What is handed to a routine that takes such a
// reference is not found.
QStringList FindForeignWrites(const SourceTexts& texts);
