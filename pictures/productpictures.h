// The published pictures: each output is decoded, scaled to the size that the template demands and
// written as JPEG. A picture that can't be read throws PictureError, which ends the pass; its text
// tells the user where to find the picture.
#pragma once

#include "engine/recordset.h"
#include "pictures/picturesizes.h"
#include "site/outputs.h"
#include "site/template.h"

// The picture of the row (of Pictures) on which `pictures` stands, as the section demands. Without
// a demand the file has neither name nor data. %%PICTUREID%% in the section's Name is the row's.
OutputFile RenderProductPicture(const Recordset& pictures, const TemplateSectionRecord& section);

// Adds the pictures of a product to OutputFiles, in album order, each once for every
// product-picture section of ImageSections that has a demand. Leaves `pictures` filtered to the
// product. A PictureError names `productRef` and the picture's place in the album, counted from 1.
void RenderProductPictures(const QString& productId, const QString& productRef,
                           Recordset& pictures);

// Adds the placeholder, picture id "nopicture", for every product-picture section with RESIZE: of
// the template's own picture, else of the company's logo. Without either there is none.
void PrepareNoPictureImages();

// Adds logo, extra picture and map of the company, where there is a picture and the template has a
// section for it with OPTIMALSIZE.
void AddCompanyLogos();
