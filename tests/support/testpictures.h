// Pictures for tests. Those that no writer of ours makes (foreign colour models, profiles,
// animations, odd bitmaps) lie as files beside the tests that read them.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>

// Four fields of plain colour: A left above, B right above, C left below, D right below.
inline constexpr QRgb kFieldA = 0xFFC03020;
inline constexpr QRgb kFieldB = 0xFF20A040;
inline constexpr QRgb kFieldC = 0xFF3040C0;
inline constexpr QRgb kFieldD = 0xFFE0D080;
QImage FourFields(QSize size);

// The letters of the fields that the four corners of `image` show, in the order above; "?" for any
// other colour. `tolerance` in levels of a channel.
QByteArray CornerFields(const QImage& image, int tolerance = 12);

// The largest difference of a channel between two colours, in levels.
int ColorDistance(QRgb a, QRgb b);

QByteArray MakeJpeg(const QImage& image, bool progressive = false);
