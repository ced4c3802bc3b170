#include "images/jpegwriter.h"
#include "images/picture.h"
#include "images/scaling.h"
#include "tests/support/testpictures.h"

#include <QtEndian>
#include <cmath>
#include <gtest/gtest.h>

namespace {

QImage Plain(QSize size, QRgb color) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

// Waves of many lengths in both directions, grey.
QImage Waves(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const double value = 128 + 50 * std::sin(x * 0.011 + y * 0.003) +
                                 40 * std::sin(y * 0.023) + 30 * std::sin(x * 1.9 + y * 2.3);
            const int level = std::clamp(int(value), 0, 255);
            image.setPixel(x, y, qRgb(level, level, level));
        }
    }
    return image;
}

// Mean of what the output pixel covers, by the fractions of the pixels.
double MeanAt(const QImage& image, QSize size, int column, int row) {
    const double left = double(column) * image.width() / size.width();
    const double right = double(column + 1) * image.width() / size.width();
    const double top = double(row) * image.height() / size.height();
    const double bottom = double(row + 1) * image.height() / size.height();
    double sum = 0;
    for (int y = int(top); y < std::min<double>(image.height(), bottom); ++y) {
        for (int x = int(left); x < std::min<double>(image.width(), right); ++x) {
            sum += qRed(image.pixel(x, y)) *
                   (std::min(right, x + 1.0) - std::max<double>(left, x)) *
                   (std::min(bottom, y + 1.0) - std::max<double>(top, y));
        }
    }
    return sum / (right - left) / (bottom - top);
}

// Second bytes of the markers in front of a JPEG's data, the last one 0xDA.
std::vector<int> SegmentsOf(const QByteArray& jpeg) {
    std::vector<int> markers;
    qsizetype at = 2;
    while (at + 4 <= jpeg.size() && (markers.empty() || markers.back() != 0xDA)) {
        markers.push_back(uchar(jpeg[at + 1]));
        at += 2 + qFromBigEndian<quint16>(jpeg.constData() + at + 2);
    }
    return markers;
}

} // namespace

TEST(Scaling, GivesExactlyTheAskedSizeAndKeepsPlainColors) {
    const QSize kSides[] = {{1, 1}, {1, 7}, {64, 3}, {200, 150}, {1013, 9}};
    for (const QSize& from : kSides) {
        for (const QSize& to : kSides) {
            for (const QRgb color : {0xFF000000, 0xFFFFFFFF, 0xFF804020}) {
                const QImage scaled = ScalePicture(Plain(from, color), to);
                ASSERT_EQ(scaled, Plain(to, color)) << from.width() << " to " << to.width();
            }
        }
    }
}

TEST(Scaling, ReducedPictureStaysNearTheMeanOfWhatEachPixelCovers) {
    const QImage waves = Waves(QSize(803, 601));
    for (const QSize& size : {QSize(400, 300), QSize(201, 100), QSize(60, 45), QSize(7, 90)}) {
        const QImage scaled = ScalePicture(waves, size);
        double squares = 0;
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const double error = qRed(scaled.pixel(x, y)) - MeanAt(waves, size, x, y);
                squares += error * error;
            }
        }
        EXPECT_LT(std::sqrt(squares / (size.width() * size.height())), 3) << size.width();
    }
}

TEST(Scaling, EnlargedPictureIsSmoothAndUnscaledOneUnchanged) {
    const QImage waves = Waves(QSize(60, 40));
    EXPECT_EQ(ScalePicture(waves, waves.size()), waves);
    const QImage fields = ScalePicture(FourFields(QSize(4, 4)), QSize(64, 64));
    EXPECT_EQ(CornerFields(fields), "ABCD");
    for (int x = 1; x < 64; ++x) {
        EXPECT_LE(ColorDistance(fields.pixel(x, 0), fields.pixel(x - 1, 0)), 20) << x;
    }
}

TEST(JpegWriter, WritesBaselineWithHalvedChromaAndNoMetadata) {
    const QByteArray jpeg = EncodeJpeg(FourFields(QSize(61, 47)));
    EXPECT_EQ(SegmentsOf(jpeg),
              (std::vector<int>{0xE0, 0xDB, 0xDB, 0xC0, 0xC4, 0xC4, 0xC4, 0xC4, 0xDA}));
    const qsizetype frame = jpeg.indexOf("\xFF\xC0");
    EXPECT_EQ(jpeg.mid(frame + 5, 4).toHex(), "002f003d");
    EXPECT_EQ(jpeg.mid(frame + 11, 1).toHex(), "22") << "luminance twice in both directions";
    EXPECT_EQ(jpeg.mid(jpeg.indexOf("\xFF\xDB") + 5, 4).toHex(), "06040506") << "quality 80";
    EXPECT_EQ(CornerFields(QImage::fromData(jpeg)), "ABCD");
    EXPECT_THROW(EncodeJpeg(QImage()), PictureError);
}
