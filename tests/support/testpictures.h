// Picture files for tests, made byte by byte where no writer of ours would: foreign colour models,
// profiles, camera blocks, animations, odd bitmaps.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QString>
#include <cstdio>
#include <jpeglib.h>
#include <vector>

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

struct JpegRecipe {
    J_COLOR_SPACE model = JCS_YCbCr;
    bool progressive = false;
    bool adobeMarker = true; // CMYK only: the mark, and inks inverted
    QByteArray profile = {};
    int quality = 95;
};

// Colours of CMYK are turned into inks without black.
QByteArray MakeJpeg(const QImage& image, const JpegRecipe& recipe = {});

// The JPEG with one more segment in front, `marker` 0xE0 to 0xFE.
QByteArray WithSegment(const QByteArray& jpeg, int marker, const QByteArray& content);

// Content of the camera's segment, in either byte order.
QByteArray ExifBlock(int orientation, bool bigEndian = false, bool adobeRgb = false);

// Markers (second bytes) of the segments in front of the picture's data, the last one 0xDA.
std::vector<int> SegmentsOf(const QByteArray& jpeg);

// Profiles (ICC.1).
QByteArray SrgbProfile();
QByteArray AdobeRgbProfile();
QByteArray LinearGreyProfile();
QByteArray SwappedCmykProfile(); // cyan and magenta exchanged: tells that it was used

struct GifFrame {
    QPoint place = {};
    QSize size = {};
    QByteArray pixels = {}; // an index each, row by row
    std::vector<QRgb> palette = {};
    int transparent = -1; // index, or none
    bool interlaced = false;
};

// A GIF of two-bit indices.
QByteArray MakeGif(QSize screen, const std::vector<GifFrame>& frames);

struct BmpRecipe {
    int depth = 24;
    quint32 compression = 0;
    bool topDown = false;
    bool oldHeader = false; // of 12 bytes
    QByteArray table = {};  // palette or masks
};

// The reason that the program's reader refuses a picture for, which it calls "foto"; "" where it
// takes it.
QString ReadingFailure(const QByteArray& bytes);

// A BMP around the pixels' bytes as they stand in the file.
QByteArray MakeBmp(QSize size, const QByteArray& pixels, const BmpRecipe& recipe = {});
