// Decoding JPEG (ITU-T T.81; CMYK by the conventions of Adobe's marker) at a fraction of its size.
#pragma once

#include "images/picture.h"

class QIODevice;

// Upright size from the head of the file alone. Throws PictureError.
QSize ReadJpegSize(QIODevice& file);

// Covers `neededSize` twice in both directions, as far as the picture is that large; an empty one
// decodes whole, as far as memory is bounded. Throws PictureError.
DecodedPicture ReadJpeg(QIODevice& file, QSize neededSize);
