// The last stage of a publish: the property portal is brought up to date. The agent logs in, what
// the portal lacks is queued, and the connections work it off while the window stays alive.
#pragma once

#include "store/snapshot.h"

#include <QString>

// Why the portal's step of the last run failed or what was left out, for the user; empty otherwise,
// and after a cancel.
extern QString PortalProblem;

// Done, failed or cancelled as the list of steps shows; the site's own outcome is another matter.
// Without a portal user it fails without any traffic. Nothing is thrown.
void PortalSync(SiteSnapshot& snapshot);
