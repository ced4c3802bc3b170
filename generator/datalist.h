// The catalogue as script data: one file per language with all products in arrays, from which the
// template's script pages, sorts and filters.
#pragma once

#include "store/snapshot.h"

// Expands the section of kind 9 once for each language, with empty arrays when there are no
// products; without such a section it does nothing. An array of a field has an entry for each
// product that has the field, so that arrays need not be as long as the list of products: designs
// rely on it.
void BuildProductDataList(SiteSnapshot& snapshot);
