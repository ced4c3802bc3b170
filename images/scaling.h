// Scaling for published pictures. Sources of any format; results are Format_RGB32.
#pragma once

#include <QImage>
#include <QSize>

// `source` reduced by whole factors, each pixel the mean of those that it covers, as far as it
// still covers `neededSize` (not empty) twice in both directions; `source` itself where it doesn't.
QImage ShrinkPicture(const QImage& source, QSize neededSize);

// The whole of `source` stretched to exactly `size` (at least 1 by 1 pixels) in halftone quality:
// each output pixel stands for all the pixels that it covers. Throws PictureError when there is no
// memory for it.
QImage ScalePicture(const QImage& source, QSize size);
