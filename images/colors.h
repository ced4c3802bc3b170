// Colours of photographs: from their embedded profile (ICC.1), or from what their kind of picture
// means without one, to sRGB.
#pragma once

#include <QByteArrayView>
#include <QRgb>
#include <memory>

// Channels of a row of pixels, 8 bits each.
enum class ColorModel {
    Grey, // 1 byte a pixel, 0 is black
    Rgb,  // 4 bytes a pixel as in QRgb
    Cmyk  // 4 bytes a pixel, 0 is no ink
};

// Converts rows of one picture.
class ColorConverter {
public:
    virtual ~ColorConverter() = default;
    // `from` and `to` may be the same row, if the model is not Grey.
    virtual void ConvertRow(const uchar* from, QRgb* to, int width) = 0;
};

// Null where there is nothing to convert: a profile that is sRGB in effect, none at all, a damaged
// one, or one of another model than the picture's. `inverted`: 255 is no ink.
std::unique_ptr<ColorConverter> MakeProfileConverter(QByteArrayView profile, ColorModel model,
                                                     bool inverted);

// For pictures in Adobe RGB (1998) that embed no profile.
std::unique_ptr<ColorConverter> MakeAdobeRgbConverter();

// For CMYK without a profile: each ink takes its share of the light.
std::unique_ptr<ColorConverter> MakePlainCmykConverter(bool inverted);
