// What the readers of picture files have in common: the picture that they give, their limits and
// their one kind of failure.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <stdexcept>

// Pixels of the largest picture that is read at all. Only a JPEG may be as large: it is shrunk
// while it is decoded.
inline constexpr qint64 kMaxPicturePixels = 200'000'000;

// Pixels of the largest picture in memory, 4 bytes each.
inline constexpr qint64 kMaxDecodedPixels = 100'000'000;

// A picture that is missing, damaged, of an unknown kind or of an absurd size. The text is for the
// user, in Spanish.
class PictureError : public std::runtime_error {
public:
    explicit PictureError(const QString& text) : std::runtime_error(text.toStdString()) {}
    QString Text() const { return QString::fromUtf8(what()); }
};

struct DecodedPicture {
    QImage image;      // Format_RGB32, upright, sRGB
    QSize naturalSize; // pixels of the whole picture, upright; the image may be smaller
};

// Failures that several readers share, as they end a sentence.
PictureError DamagedPicture();
PictureError TooLargePicture(QSize size);

// An image of that size, Format_RGB32, its content undefined; TooLargePicture when there is no
// memory for it.
QImage AllocatePicture(QSize size);
