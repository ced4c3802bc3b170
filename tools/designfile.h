// Writing design files, the counterpart of site/template.
#pragma once

#include "tools/design.h"

#include <QByteArray>

// The whole .zdt file. Texts beyond their fields are cut; the checks have refused them before.
QByteArray EncodeDesign(const Design& design);

// Reads, checks and encodes; empty where the report has errors. `scramble` does what the manifest's
// own key does.
QByteArray PackDesign(const QString& folder, bool scramble, PackReport& report);
