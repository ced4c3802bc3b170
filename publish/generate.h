// The driver: turns the snapshot and the chosen template into a complete set of files and has them
// delivered.
#pragma once

#include "store/snapshot.h"

#include <QString>

// True if the site reached its destination. False at once, without touching the step list, if the
// template file is missing; false after a failed step if it is no template or delivery fails, or
// after a cancel. Errors of the catalogue's content (a picture that can't be read) are thrown with
// a text for the user.
bool GenerateSite(const QString& templatePath, SiteSnapshot& snapshot);

// One page in the scratch folder "temp/" under the store's folder, for looking at. `request` is
// "PRODUCT|id", "LAYOUT|id", "FINDUS" or "ABOUTUS". The path of the page to show; empty when it
// could not be made, as while the site itself is being generated or sent.
QString GeneratePreviewPage(const QString& request, const QString& templatePath,
                            SiteSnapshot& snapshot);
