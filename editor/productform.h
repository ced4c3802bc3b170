// The product editor: clearing it, and what its boxes do while the user types.
#pragma once

// Empties all controls; a new product still pending loses its row lock.
void ClearProductForm();

// Connects the editor's controls to their handlers.
void ConnectProductForm();
