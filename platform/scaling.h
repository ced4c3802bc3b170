// Scaling for published pictures.
#pragma once

#include <QImage>
#include <QSize>

// The whole of `source` stretched to exactly `size` (at least 1 by 1 pixels), as Format_RGB888, in
// halftone quality: each output pixel stands for all the pixels that it covers.
QImage ScalePicture(const QImage& source, QSize size);
