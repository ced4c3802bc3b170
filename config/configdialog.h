// The configuration dialog as a whole: filling it, taking its values over, its pages for hosting,
// folders and portal.
#pragma once

// Pages of the dialog.
enum ConfigPage { kPageDesign = 0, kPageHosting = 1, kPageAdvanced = 2, kPagePortal = 3 };

// Shows the dialog on a page, modally. Without an open store only the page with the folder of the
// catalogue can be used.
void ShowConfig(int page);
