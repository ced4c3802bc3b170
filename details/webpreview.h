// The finished site in a window of its own.
#pragma once

#include <QString>

// Shows a page of the site modally, in the embedded browser or, where that is missing, in the
// system's. Without a user nothing is shown.
void ShowWebPreview(const QString& path);
