#include "core/version.h"

QString VersionText() {
    return QStringLiteral("%1.%2.%3").arg(kVersionMajor).arg(kVersionMinor).arg(kVersionRevision);
}
