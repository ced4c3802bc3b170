// Writing baseline JPEG files (ITU-T T.81) without any metadata.
#pragma once

#include <QByteArray>
#include <QImage>

// Quality of every published picture, 0 to 100. Fixed.
inline constexpr int kJpegQuality = 80;

// YCbCr with the chroma halved in both directions, sides up to 65,500 pixels. An image beyond that,
// or of no pixels, throws PictureError.
QByteArray EncodeJpeg(const QImage& image);
