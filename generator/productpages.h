// A page per product and language, with the product's pictures.
#pragma once

#include "store/snapshot.h"

#include <QString>

// Expands the section of kind 2, or of kind 20 with kLayoutMarker, into OutputFiles; without such a
// section it does nothing. `productId` empty: all products, stopping when AbortPublish is set. With
// `changedOnly` a product that has not changed since LastWebUpdate is passed over, unless
// `productId` names it or nothing was published yet. Begins a new ZoneLangList. A picture that
// can't be read throws PictureError.
//
// Returns the name, without blanks around it, of the last page made for UICurrentLang; empty if
// there is none.
QString BuildProductPages(const QString& productId, int layoutMarker, bool changedOnly,
                          SiteSnapshot& snapshot);
