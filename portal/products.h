// Which products and deletions go to the portal, and their requests. They are written from the
// snapshot of the publish, in Spanish, once the agent is logged in.
#pragma once

#include "store/snapshot.h"

#include <QString>

// Begins the jobs anew and queues, for each product that the portal doesn't list, a save and behind
// it the pictures. Stops where the portal is given up.
void QueueProducts(SiteSnapshot& snapshot);

// Queues one request for each of DeletedItems, which it leaves alone.
void QueueDeletions();

// Whether the log-in page lists the product: then it isn't sent, even if it has been changed here.
bool IsOnPortal(const QString& productId);

// Number of a kind of property on the portal, by its Spanish word without regard to case; 1, a
// flat, for any other.
int PortalPropertyType(const QString& text);
