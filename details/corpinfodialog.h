// The company dialog: its data, pictures, texts and registry entry.
#pragma once

// Shows the dialog on one of its four pages, modally. The editor's language may be another
// afterwards.
void ShowCorpInfo(int page);
