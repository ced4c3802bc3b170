// The program's version.
#pragma once

#include <QString>

inline constexpr int kVersionMajor = 1;
inline constexpr int kVersionMinor = 1;
inline constexpr int kVersionRevision = 19;

// "1.1.19", as the splash, the pages and the about box show it.
QString VersionText();
