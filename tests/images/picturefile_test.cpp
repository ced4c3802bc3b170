#include "images/picturefile.h"
#include "tests/support/files.h"
#include "tests/support/testpictures.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QtEndian>
#include <gtest/gtest.h>

namespace {

constexpr QSize kSmall(48, 32);

DecodedPicture Read(const QByteArray& bytes, QSize neededSize = {}) {
    return ReadPictureBytes(bytes, "foto", neededSize);
}

QByteArray Picture(const QString& name) {
    return ReadFile(PICTURES "/" + name);
}

// The reason that a picture is refused for; "" where it is taken.
QString ReadingFailure(const QByteArray& bytes) {
    try {
        Read(bytes);
        return {};
    } catch (const PictureError& error) {
        return error.Text();
    }
}

// Content of a camera's segment in either byte order: orientation, then by way of two more folders
// the mark of Adobe RGB ("R03") or sRGB ("R98").
QByteArray CameraBlock(int orientation, bool bigEndian = false, bool adobeRgb = false) {
    constexpr int kOrientationAt = 24;
    QByteArray block =
        QByteArray("Exif\0\0", 6) +
        QByteArray::fromHex(bigEndian ? "4d4d002a00000008 0002 0112000300000001 00000000"
                                        "8769000400000001 00000026 00000000"
                                        "0001 a005000400000001 00000038 00000000"
                                        "0001 0001000200000004 52393800 00000000"
                                      : "49492a0008000000 0200 1201030001000000 00000000"
                                        "6987040001000000 26000000 00000000"
                                        "0100 05a0040001000000 38000000 00000000"
                                        "0100 0100020004000000 52393800 00000000");
    const auto value = quint16(orientation);
    bigEndian ? qToBigEndian(value, block.data() + kOrientationAt)
              : qToLittleEndian(value, block.data() + kOrientationAt);
    return adobeRgb ? block.replace("R98", "R03") : block;
}

// The JPEG with a camera's segment in front.
QByteArray WithBlock(QByteArray jpeg, const QByteArray& block) {
    QByteArray head("\xFF\xE1  ");
    qToBigEndian(quint16(block.size() + 2), head.data() + 2);
    return jpeg.insert(2, head + block);
}

QByteArray WithCamera(int orientation, bool bigEndian = false, bool adobeRgb = false) {
    return WithBlock(Picture("fields.jpg"), CameraBlock(orientation, bigEndian, adobeRgb));
}

// Offset of the n-th scan (from 0) of a JPEG.
qsizetype ScanStart(const QByteArray& jpeg, int n) {
    qsizetype at = jpeg.indexOf("\xFF\xDA");
    while (n-- > 0) {
        at = jpeg.indexOf("\xFF\xDA", at + 2);
    }
    return at;
}

QRgb FirstPixel(const QString& name) {
    return Read(Picture(name)).image.pixel(0, 0);
}

QByteArray WithSize(QByteArray jpeg, const QByteArray& heightAndWidth) {
    return jpeg.replace(jpeg.indexOf("\xFF\xC0") + 5, 4, heightAndWidth);
}

} // namespace

TEST(PictureFile, EveryKindOfPictureGivesItsColors) {
    const QStringList names = QDir(PICTURES).entryList({"fields*"});
    EXPECT_EQ(names.size(), 24);
    for (const QString& name : names) {
        EXPECT_EQ(CornerFields(Read(Picture(name)).image), "ABCD") << name.toStdString();
    }
    const QImage woven = Read(Picture("fields-interlaced.gif")).image;
    EXPECT_EQ(CornerFields(woven.copy(1, 1, 14, 14)), "ABCD");
}

TEST(BitmapReader, WhatAGifLeavesOutIsWhite) {
    const QImage placed = Read(Picture("placed-transparent.gif")).image;
    EXPECT_EQ(placed.size(), QSize(5, 4));
    EXPECT_EQ(placed.pixel(0, 0), 0xFFFFFFFF) << "outside the frame";
    EXPECT_EQ(placed.pixel(2, 1), kFieldA);
    EXPECT_EQ(placed.pixel(3, 2), 0xFFFFFFFF) << "transparent";
}

TEST(BitmapReader, PixelsThatAFilePassesOverHaveTheFirstColor) {
    const QByteArray bytes = Picture("passed-over.bmp"); // all but three of its pixels
    QByteArray(20'000, '\x5A').clear();                  // what memory held before must not show
    const QImage image = Read(bytes).image;
    EXPECT_LE(ColorDistance(image.pixel(0, 99), kFieldC), 0);
    for (int y = 0; y < 99; ++y) {
        ASSERT_EQ(image.pixel(y, y), kFieldA) << y;
    }
}

TEST(BitmapReader, PicturesAreShrunkToTwiceTheNeededSize) {
    QByteArray bmp;
    QBuffer buffer(&bmp);
    FourFields(QSize(80, 60)).save(&buffer, "BMP");
    const DecodedPicture picture = Read(bmp, QSize(10, 10));
    EXPECT_EQ(picture.image.size(), QSize(20, 20));
    EXPECT_EQ(picture.naturalSize, QSize(80, 60));
    EXPECT_EQ(CornerFields(picture.image), "ABCD");
}

TEST(BitmapReader, DamagedOrAbsurdFilesAreRefused) {
    const QByteArray gif = Picture("fields.gif");
    const QByteArray bmp = Picture("fields-24.bmp");
    const auto changed = [](QByteArray bytes, int at, const char* hex) {
        const QByteArray by = QByteArray::fromHex(hex);
        return bytes.replace(at, by.size(), by);
    };
    const struct {
        const char* what;
        QByteArray bytes;
        const char* reason;
    } kCases[] = {
        {"GIF of its mark alone", gif.left(6), "dañado"},
        {"GIF without a frame", gif.left(13) + ";", "dañado"},
        {"GIF cut within its frame", gif.left(gif.size() - 6), "dañado"},
        {"GIF of an absurd size", changed(gif, 6, "FFFFFFFF"), "demasiado"},
        {"GIF of a size beyond its bytes", changed(gif, 6, "00200020"), "dañado"},
        {"GIF of no size", changed(gif, 6, "00000000"), "dañado"},
        {"BMP of its mark alone", bmp.left(2), "dañado"},
        {"BMP cut within its pixels", bmp.chopped(5), "dañado"},
        {"packed BMP cut within its runs", Picture("fields-8-packed.bmp").chopped(4), "dañado"},
        {"BMP of an absurd size", changed(bmp, 18, "80841E00 80841E00"), "demasiado"},
        {"BMP of no size", changed(bmp, 18, "00000000"), "dañado"},
        {"BMP with an unknown header", changed(bmp, 14, "0D000000"), "dañado"},
    };
    for (const auto& c : kCases) {
        const QString failure = ReadingFailure(c.bytes);
        EXPECT_TRUE(failure.contains(c.reason)) << c.what << ": " << failure.toStdString();
    }
}

TEST(JpegReader, PhotographsAreTurnedUprightHoweverTheCameraWasHeld) {
    constexpr const char* kUpright[] = {"ABCD", "BADC", "DCBA", "CDAB",
                                        "ACBD", "CADB", "DBCA", "BDAC"};
    for (int orientation = 1; orientation <= 8; ++orientation) {
        for (const bool bigEndian : {false, true}) {
            const DecodedPicture picture = Read(WithCamera(orientation, bigEndian));
            EXPECT_EQ(CornerFields(picture.image), kUpright[orientation - 1]) << orientation;
            const QSize size = orientation < 5 ? kSmall : kSmall.transposed();
            EXPECT_EQ(picture.image.size(), size);
            EXPECT_EQ(picture.naturalSize, size);
        }
    }
    for (const int unknown : {0, 9, 65535}) {
        EXPECT_EQ(CornerFields(Read(WithCamera(unknown)).image), "ABCD") << unknown;
    }
}

TEST(JpegReader, BrokenCameraBlockCountsAsAbsent) {
    const QByteArray whole = CameraBlock(6);
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const QByteArray jpeg = WithBlock(Picture("fields.jpg"), whole.left(length));
        const QByteArray corners = CornerFields(Read(jpeg).image);
        EXPECT_TRUE(corners == "ABCD" || (corners == "CADB" && length > 20)) << length;
    }
}

TEST(JpegReader, GreyPicturesStayGrey) {
    const int level = qGray(kFieldA);
    EXPECT_LE(ColorDistance(FirstPixel("grey.jpg"), qRgb(level, level, level)), 2);
    const QRgb linear = FirstPixel("grey-linear-profile.jpg");
    EXPECT_GT(qRed(linear), level + 40);
    EXPECT_EQ(qRed(linear), qBlue(linear));
}

TEST(JpegReader, EmbeddedProfilesBringColorsToSrgb) {
    const QRgb plain = FirstPixel("fields.jpg");
    for (const char* unchanged :
         {"fields-srgb-profile.jpg", "fields-profile-of-grey.jpg", "fields-cut-profile.jpg"}) {
        EXPECT_EQ(FirstPixel(unchanged), plain) << unchanged;
    }
    const QRgb adobe = FirstPixel("adobe-rgb-profile.jpg");
    EXPECT_GT(qRed(adobe), qRed(plain) + 15); // the same numbers are more saturated there
    EXPECT_LT(qGreen(adobe), qGreen(plain));
    EXPECT_EQ(Read(WithCamera(1, false, true)).image.pixel(0, 0), adobe) << "marked by the camera";
    for (const char* inks : {"inks-swapped-profile.jpg", "inks-swapped-profile-inverted.jpg"}) {
        const QRgb swapped = FirstPixel(inks); // cyan and magenta exchanged
        EXPECT_GT(qGreen(swapped), qRed(swapped) + 40) << inks;
    }
}

TEST(JpegReader, DecodesAtTheSmallestFastScaleThatCoversTheNeededSizeTwice) {
    const QByteArray jpeg = MakeJpeg(FourFields(QSize(1600, 801)));
    const QByteArray turned = WithBlock(jpeg, CameraBlock(6));
    const struct {
        const QByteArray& jpeg;
        QSize needed;
        QSize decoded;
    } kCases[] = {
        {jpeg, {}, {1600, 801}},           {jpeg, {100, 50}, {200, 101}},
        {jpeg, {101, 50}, {400, 201}},     {jpeg, {10, 51}, {400, 201}},
        {jpeg, {400, 200}, {800, 401}},    {jpeg, {401, 1}, {1600, 801}},
        {jpeg, {2000, 2000}, {1600, 801}}, {turned, {50, 100}, {101, 200}},
        {turned, {100, 50}, {201, 400}},
    };
    for (const auto& c : kCases) {
        const DecodedPicture picture = Read(c.jpeg, c.needed);
        EXPECT_EQ(picture.image.size(), c.decoded) << c.needed.width() << "x" << c.needed.height();
        EXPECT_EQ(picture.naturalSize.width() * picture.naturalSize.height(), 1600 * 801);
    }
}

TEST(JpegReader, SmallFaultsAreForgiven) {
    const QByteArray jpeg = Picture("fields.jpg");
    EXPECT_EQ(ReadingFailure(jpeg.chopped(2)), "") << "no end marker";
    EXPECT_EQ(ReadingFailure(jpeg + "behind the picture"), "");
    QByteArray stray = jpeg;
    stray.insert(jpeg.size() - 2, QByteArray(9, '\x11'));
    EXPECT_EQ(ReadingFailure(stray), "") << "stray bytes before the end marker";
    const QByteArray progressive = Picture("fields-progressive.jpg");
    EXPECT_EQ(ReadingFailure(progressive.chopped(2)), "") << "progressive without an end marker";
}

TEST(JpegReader, DamagedOrAbsurdFilesAreRefusedByName) {
    QImage noise(QSize(256, 256), QImage::Format_RGB32);
    std::generate_n(reinterpret_cast<QRgb*>(noise.bits()), 256 * 256,
                    [seed = 1u]() mutable { return seed = seed * 1664525 + 1013904223; });
    const QByteArray jpeg = MakeJpeg(noise);
    const QByteArray progressive = MakeJpeg(noise, true);
    QByteArray garbage = jpeg;
    for (qsizetype i = ScanStart(jpeg, 0) + 20; i < garbage.size(); ++i) {
        garbage[i] = char(i * 2654435761u >> 13);
    }
    const struct {
        const char* what;
        QByteArray bytes;
        const char* reason;
    } kCases[] = {
        {"empty", {}, "JPEG, GIF ni BMP"},
        {"a picture of another kind", "\x89PNG\r\n\x1A\n", "JPEG, GIF ni BMP"},
        {"the head alone", jpeg.left(ScanStart(jpeg, 0) + 14), "dañado"},
        {"half", jpeg.left(jpeg.size() / 2), "dañado"},
        {"nearly all", jpeg.chopped(200), "dañado"},
        {"half, closed by an end marker", jpeg.left(jpeg.size() / 2) + "\xFF\xD9", "dañado"},
        {"garbage behind the head", garbage, "dañado"},
        {"progressive, cut within a scan", progressive.chopped(200), "dañado"},
        {"progressive, cut between scans", progressive.left(ScanStart(progressive, 4)), "dañado"},
        {"more scans than any encoder makes", Picture("many-scans.jpg"), "dañado"},
        {"a size beyond its bytes", WithSize(jpeg, "\x2E\xE0\x2E\xE0"), "dañado"},
        {"an absurd size", WithSize(jpeg, "\xFF\xDC\xFF\xDC"), "demasiado grande (65500 x 65500"},
        {"no size", WithSize(jpeg, QByteArray(4, '\0')), "dañado"},
    };
    for (const auto& c : kCases) {
        const QString failure = ReadingFailure(c.bytes);
        EXPECT_TRUE(failure.contains(c.reason)) << c.what << ": " << failure.toStdString();
        EXPECT_TRUE(failure.contains("foto")) << c.what;
    }
    EXPECT_EQ(ReadingFailure(progressive), "");
}

TEST(PictureFile, SizeComesFromTheHeadAndMissingFilesAreNamed) {
    QTemporaryDir folder;
    const QByteArray cut = WithCamera(6).left(900); // within the picture's data
    EXPECT_EQ(ReadPictureSize(WriteFile(folder.filePath("Pic1000101.dat"), cut)),
              kSmall.transposed());
    for (const QString& missing : {folder.filePath("Pic7.dat"), folder.path() + "/"}) {
        try {
            ReadPicture(missing);
            FAIL() << missing.toStdString();
        } catch (const PictureError& error) {
            EXPECT_TRUE(error.Text().contains("no se encuentra"));
            EXPECT_TRUE(error.Text().contains(QFileInfo(missing).fileName()));
        }
    }
}
