// The product editor without a product.
#pragma once

// Empties all controls and lets the row of the product go.
void ClearProductForm();
