// Checks of what stands in the text of a design: tags that nothing replaces where they are, and the
// traps of pages and scripts.
#pragma once

#include "tools/design.h"

// Warnings alone.
void CheckTags(const Design& design, PackReport& report);
