// The site snapshot: eight private, read-only result sets taken just before a generation, so that
// the generator can filter and walk at will while the open product and the list stay untouched.
#pragma once

#include "engine/recordset.h"

#include <vector>

// Places of the sets. The order is a contract with the generator.
enum SnapshotSet {
    kSnapProducts = 0,      // to publish, featured first, latest change first
    kSnapProductFields = 1, // public values, by product and field
    kSnapPictures = 2,      // all pictures, by product and order
    kSnapZones = 3,         // SaleZone and its count, by zone
    kSnapFieldDefs = 4,     // public definitions
    kSnapCorpInfo = 5,      // the company's row
    kSnapLangFields = 6,    // all texts per language
    kSnapLangFieldDefs = 7, // their tag names
    kSnapshotSets = 8
};

using SiteSnapshot = std::vector<Recordset>;

// Fills `sets` (resized to eight). Changes made by others afterwards are not seen. A StoreError of
// one statement passes to the caller; the sets made so far stay.
void TakeSiteSnapshot(SiteSnapshot& sets);

// Releases all sets.
void DropSiteSnapshot(SiteSnapshot& sets);
