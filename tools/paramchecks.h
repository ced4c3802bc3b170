// Checks of parameter strings. The program finds a parameter by plain search, so that a key is also
// found inside another key or an earlier value.
#pragma once

#include "tools/design.h"

// Errors: items without "=", keys that the program would find elsewhere, missing or malformed
// FIELDDEFID, malformed sizes. A picture section without a size is a warning.
void CheckParams(const DesignSection& section, PackReport& report);

// An error unless the program finds `value` for `key` in `text`.
void CheckParamIsFound(const QString& text, const QString& key, const QString& value,
                       const SourcePlace& place, PackReport& report);
