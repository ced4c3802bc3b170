// Reading GIF (GIF89a, its first frame as it stands on the screen) and BMP.
#pragma once

#include "images/picture.h"

class QIODevice;

// From the head of the file alone. Throws PictureError.
QSize ReadGifSize(QIODevice& file);
QSize ReadBmpSize(QIODevice& file);

// Format_RGB32; transparent parts of a GIF are white, and the fourth channel of a BMP counts for
// nothing. Throws PictureError.
QImage ReadGif(QIODevice& file);
QImage ReadBmp(QIODevice& file);
