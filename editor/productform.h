// The product editor: clearing it, and what its boxes do while the user types.
#pragma once

// Empties all controls and lets the row of the product go.
void ClearProductForm();

// Moves the focus from slot `index` to what the user sees of the next one, or on to the short
// description.
void FocusNextField(int index);

// Connects the editor's controls to their handlers.
void ConnectProductForm();
