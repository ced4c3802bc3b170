// The internal fields of the product on screen, which never reach the web site.
#pragma once

// Shows them modally; what is kept goes to the hidden slots of the main form and is saved with the
// product.
void ShowInternalData();
