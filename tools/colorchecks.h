// Checks of the colour sets of a design.
#pragma once

#include "tools/design.h"

// Errors: a colour without a value in a set, a name that is part of a later name or that the
// program would find elsewhere. Warnings: sets that are missing or can't be chosen, colours in
// lists, where they are not replaced.
void CheckColorSets(const Design& design, PackReport& report);
