// The last stages of a generation: the finished files reach their destination, then the portal is
// brought up to date.
#pragma once

#include "store/snapshot.h"

// Entered with the step list on its third step. True if the files reached their destination,
// whatever becomes of the portal. OutputFiles is emptied unless the run was cancelled.
bool DeliverSite(SiteSnapshot& snapshot);
