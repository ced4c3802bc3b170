// The configuration dialog's handlers.
#pragma once

// Pages of the dialog.
enum ConfigPage { kPageDesign = 0, kPageHosting = 1, kPageAdvanced = 2, kPagePortal = 3 };

// Shows the dialog on a page, modally. Without an open store only the folder of the catalogue can
// be changed.
void ShowConfig(int page);
