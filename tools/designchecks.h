// Checks of a design: limits of the file format, what every kind of section needs, and the traps of
// parameters, names and colour sets.
#pragma once

#include "tools/design.h"

void CheckDesign(const Design& design, PackReport& report);
