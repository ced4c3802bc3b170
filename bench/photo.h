// A photograph of 12 megapixels, always the same.
#pragma once

#include <QImage>

inline constexpr QSize kPhotoSize(4000, 3000);

// Structure of all sizes, colour patches, edges and the grain of a sensor.
QImage MakePhoto();
