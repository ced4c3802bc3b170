// The driver: turns the snapshot and the chosen template into a complete set of files and has them
// delivered.
#pragma once

#include "store/snapshot.h"

#include <QString>

// True if the site reached its destination. With `changedOnly` products that have not changed since
// LastWebUpdate get no pages and pictures. False at once, without touching the step list, if the
// template file is missing or a preview is just being made; false after a failed step if it is no
// template or delivery fails, or after a cancel. Errors of the catalogue's content (a picture that
// can't be read) are thrown with a text for the user.
bool GenerateSite(const QString& templatePath, SiteSnapshot& snapshot, bool changedOnly);

// Pages that can be looked at alone.
enum class PreviewPage { Product, Layout, FindUs, AboutUs };

struct PreviewRequest {
    PreviewPage page = PreviewPage::Product;
    QString productId = {}; // of the first two
};

// One page in the scratch folder "temp/" under the store's folder, for looking at. The path of the
// page to show; empty when it could not be made, as while the site itself is being generated or
// sent: a run that was cancelled may not have noticed yet.
QString GeneratePreviewPage(const PreviewRequest& request, const QString& templatePath,
                            SiteSnapshot& snapshot);
