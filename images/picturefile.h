// Reading picture files of users: JPEG, GIF (its first frame) and BMP, known by content and never
// by name. Photographs are turned upright by their EXIF orientation and come out in sRGB; CMYK,
// greyscale, palette and progressive pictures are read like any other. Transparent parts of a GIF
// become white; the fourth channel of a BMP counts for nothing.
//
// Foreign bytes: sizes are checked before memory is taken. JPEG up to 200 megapixels by scaled
// decoding, the others up to 100; a bound on the scans of a progressive file.
#pragma once

#include "images/picture.h"

#include <QByteArray>
#include <QSize>
#include <QString>

// Size in pixels, upright, from the head of the file alone. Throws PictureError, whose text names
// the file.
QSize ReadPictureSize(const QString& path);

// Decodes at the smallest scale, of those that cost the least, at which the picture still covers
// `neededSize` twice in both directions; an empty `neededSize` decodes whole. Throws PictureError,
// whose text names the file.
DecodedPicture ReadPicture(const QString& path, QSize neededSize = {});

// The same for a picture in memory; `name` is what an error's text calls it.
DecodedPicture ReadPictureBytes(const QByteArray& bytes, const QString& name,
                                QSize neededSize = {});
