// Reading picture files of users: JPEG, GIF (its first frame) and BMP, known by content and never
// by name. Photographs are turned upright by their EXIF orientation and come out in sRGB; CMYK,
// greyscale, palette and progressive pictures are read like any other.
//
// Foreign bytes: sizes are checked before memory is taken. JPEG up to 200 megapixels by scaled
// decoding; a bound on the scans of a progressive file.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>
#include <stdexcept>

// A picture that is missing, damaged, of an unknown kind or of an absurd size. The text is for the
// user, in Spanish, and names the file.
class PictureError : public std::runtime_error {
public:
    explicit PictureError(const QString& text) : std::runtime_error(text.toStdString()) {}
    QString Text() const { return QString::fromUtf8(what()); }
};

struct DecodedPicture {
    QImage
        image; // Format_RGB888, or Format_RGB32 where that is what the decoder gives; upright, sRGB
    QSize naturalSize; // pixels of the whole picture, upright; the image may be smaller
};

// Size in pixels, upright, from the head of the file alone. Throws PictureError.
QSize ReadPictureSize(const QString& path);

// Decodes at the smallest scale that still covers `neededSize` twice in both directions (a JPEG is
// shrunk by its decoder); an empty `neededSize` decodes whole. Throws PictureError.
DecodedPicture ReadPicture(const QString& path, QSize neededSize = {});
