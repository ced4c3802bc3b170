// The two facts of a photograph's EXIF block (CIPA DC-008) that matter for showing it: how the
// camera was held, and whether it took the picture in Adobe RGB, which cameras mark here instead of
// embedding a profile.
#pragma once

#include <QByteArrayView>
#include <QImage>

struct ExifFacts {
    int orientation = 1; // 1 to 8 as in the standard; 1 is upright
    bool adobeRgb = false;
};

// `tiff` is the block behind its "Exif" mark. Anything broken counts as absent.
ExifFacts ReadExif(QByteArrayView tiff);

// Whether turning a picture upright exchanges its width and height.
bool ExchangesSides(int orientation);

// The picture as it was seen.
QImage TurnUpright(const QImage& image, int orientation);
