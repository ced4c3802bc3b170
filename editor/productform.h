// The product editor: what its boxes do while the user types.
#pragma once

// Moves the focus from slot `index` to what the user sees of the next one, or on to the short
// description.
void FocusNextField(int index);

// Connects the editor's controls to their handlers.
void ConnectProductForm();
