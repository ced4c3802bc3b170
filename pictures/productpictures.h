// The published pictures: each output is decoded, scaled to the size that the template demands and
// written as JPEG.
//
// A section's Params say the size: RESIZE=WxH with an upper-case X gives exactly that size,
// OPTIMALSIZE=WxH fits inside it with the proportions kept.
#pragma once

#include "generator/outputs.h"
#include "platform/recordset.h"

#include <QSize>
#include <optional>

// What a picture of `source` pixels becomes inside `box`, as the previews and the sites have always
// computed it.
QSize FitPictureInto(QSize source, QSize box, int margin);

// Every size section's picture of a product, in album order; PictureError (with the product's
// reference) ends the pass.
void RenderProductPictures(const QString& productId, const QString& productRef,
                           Recordset& pictures);

// The placeholder "nopicture" for every size section: of the template's own picture, else of the
// company's logo.
void PrepareNoPictureImages();

// Logo, extra picture and map of the company, where the template has a section for them.
void AddCompanyLogos();
