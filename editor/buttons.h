// Which commands of the main form are enabled when.
#pragma once

// Tool bar, menu entries and the editor's frame, by whether the list holds a product and whether it
// is read-only.
void RefreshButtons();
