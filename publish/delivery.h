// The last stages of a run: the finished files reach their destination, and the portal what it
// lacks of the catalogue.
#pragma once

#include "store/snapshot.h"

// Entered with the step list on its third step. True if the files reached their destination,
// whatever came of the portal. OutputFiles is emptied, before the portal's turn, unless the run was
// cancelled.
bool DeliverSite(SiteSnapshot& snapshot);
