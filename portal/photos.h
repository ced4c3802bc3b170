// The pictures of a product on their way to the portal: one multipart form (RFC 7578, but for a
// delimiter that lacks its dashes and a file name that is always the same; the portal expects
// both).
#pragma once

#include "engine/recordset.h"

#include <QByteArray>

// Queues the request with all pictures of the product, in album order, each fitted to 460 by 345
// pixels. Leaves `pictures` filtered to the product. A picture that can't be read goes as an empty
// file, and is counted in PortalUnreadable.
void QueuePictures(const QString& productId, Recordset& pictures, const QByteArray& cookie);

extern int PortalUnreadable; // pictures of this session that could not be read

// At the beginning of a session.
void ResetPortalUnreadable();
