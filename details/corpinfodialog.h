// The company dialog: its data, pictures, texts and registry entry.
#pragma once

// Pages of the dialog.
enum CorpPage { kPageGeneral = 0, kPageFindUs = 1, kPageWebOptions = 2, kPageRegistry = 3 };

// Shows the dialog on one of its pages, modally. The editor's language may be another
// afterwards.
void ShowCorpInfo(int page);
