#include "images/picturefile.h"
#include "tests/support/files.h"
#include "tests/support/testpictures.h"

#include <QFileInfo>
#include <gtest/gtest.h>

namespace {

constexpr QSize kSmall(48, 32);

DecodedPicture Read(const QByteArray& bytes, QSize neededSize = {}) {
    return ReadPictureBytes(bytes, "foto", neededSize);
}

QByteArray WithCamera(int orientation, bool bigEndian = false, bool adobeRgb = false) {
    return WithSegment(MakeJpeg(FourFields(kSmall)), 0xE1,
                       ExifBlock(orientation, bigEndian, adobeRgb));
}

// Offset of the n-th scan (from 0) of a JPEG.
qsizetype ScanStart(const QByteArray& jpeg, int n) {
    qsizetype at = jpeg.indexOf("\xFF\xDA");
    while (n-- > 0) {
        at = jpeg.indexOf("\xFF\xDA", at + 2);
    }
    return at;
}

QByteArray WithSize(QByteArray jpeg, const QByteArray& heightAndWidth) {
    return jpeg.replace(jpeg.indexOf("\xFF\xC0") + 5, 4, heightAndWidth);
}

} // namespace

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
    const QByteArray whole = ExifBlock(6);
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const QByteArray jpeg = WithSegment(MakeJpeg(FourFields(kSmall)), 0xE1, whole.left(length));
        const QByteArray corners = CornerFields(Read(jpeg).image);
        EXPECT_TRUE(corners == "ABCD" || (corners == "CADB" && length > 20)) << length;
    }
}

TEST(JpegReader, EveryColorModelGivesTheSameColors) {
    const QImage fields = FourFields(kSmall);
    for (const J_COLOR_SPACE model : {JCS_YCbCr, JCS_RGB, JCS_CMYK, JCS_YCCK}) {
        for (const bool progressive : {false, true}) {
            for (const bool adobeMarker : {false, true}) {
                if (model == JCS_YCCK && !adobeMarker) {
                    continue; // only the marker tells it from CMYK
                }
                JpegRecipe recipe;
                recipe.model = model;
                recipe.progressive = progressive;
                recipe.adobeMarker = adobeMarker;
                EXPECT_EQ(CornerFields(Read(MakeJpeg(fields, recipe)).image), "ABCD")
                    << int(model) << progressive << adobeMarker;
            }
        }
    }
    JpegRecipe grey;
    grey.model = JCS_GRAYSCALE;
    const QRgb corner = Read(MakeJpeg(fields, grey)).image.pixel(0, 0);
    const int level = qGray(kFieldA);
    EXPECT_LE(ColorDistance(corner, qRgb(level, level, level)), 2);
}

TEST(JpegReader, EmbeddedProfilesBringColorsToSrgb) {
    const QImage fields = FourFields(kSmall);
    const auto corner = [&](const JpegRecipe& recipe) {
        return Read(MakeJpeg(fields, recipe)).image.pixel(0, 0);
    };
    const QRgb plain = corner({});
    EXPECT_EQ(corner({.profile = SrgbProfile()}), plain);
    EXPECT_EQ(corner({.profile = LinearGreyProfile()}), plain) << "profile of another model";
    EXPECT_EQ(corner({.profile = AdobeRgbProfile().left(200)}), plain) << "damaged profile";

    const QRgb adobe = corner({.profile = AdobeRgbProfile()});
    EXPECT_GT(qRed(adobe), qRed(plain) + 15); // the same numbers are more saturated there
    EXPECT_LT(qGreen(adobe), qGreen(plain));
    EXPECT_EQ(Read(WithCamera(1, false, true)).image.pixel(0, 0), adobe) << "marked by the camera";

    const QRgb grey = corner({.model = JCS_GRAYSCALE});
    const QRgb linear = corner({.model = JCS_GRAYSCALE, .profile = LinearGreyProfile()});
    EXPECT_GT(qRed(linear), qRed(grey) + 40);
    EXPECT_EQ(qRed(linear), qBlue(linear));

    for (const bool inverted : {false, true}) {
        JpegRecipe cmyk{.model = JCS_CMYK, .adobeMarker = inverted};
        cmyk.profile = SwappedCmykProfile();
        const QRgb swapped = corner(cmyk);
        EXPECT_GT(qGreen(swapped), qRed(swapped) + 40) << inverted;
    }
}

TEST(JpegReader, DecodesAtTheSmallestFastScaleThatCoversTheNeededSizeTwice) {
    const QByteArray jpeg = MakeJpeg(FourFields(QSize(1600, 801)));
    const QByteArray turned = WithSegment(jpeg, 0xE1, ExifBlock(6));
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
    const QByteArray jpeg = MakeJpeg(FourFields(kSmall));
    EXPECT_EQ(ReadingFailure(jpeg.chopped(2)), "") << "no end marker";
    EXPECT_EQ(ReadingFailure(jpeg + "behind the picture"), "");
    QByteArray stray = jpeg;
    stray.insert(jpeg.size() - 2, QByteArray(9, '\x11'));
    EXPECT_EQ(ReadingFailure(stray), "") << "stray bytes before the end marker";
    const QByteArray progressive = MakeJpeg(FourFields(kSmall), {.progressive = true});
    EXPECT_EQ(ReadingFailure(progressive.chopped(2)), "") << "progressive without an end marker";
}

TEST(JpegReader, DamagedOrAbsurdFilesAreRefusedByName) {
    QImage noise(QSize(256, 256), QImage::Format_RGB32);
    std::generate_n(reinterpret_cast<QRgb*>(noise.bits()), 256 * 256,
                    [seed = 1u]() mutable { return seed = seed * 1664525 + 1013904223; });
    const QByteArray jpeg = MakeJpeg(noise);
    const QByteArray progressive = MakeJpeg(noise, {.progressive = true});
    const QByteArray scan = progressive.mid(ScanStart(progressive, 2),
                                            ScanStart(progressive, 3) - ScanStart(progressive, 2));
    QByteArray endless = progressive.chopped(2);
    for (int i = 0; i < 70; ++i) {
        endless += scan;
    }
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
        {"more scans than any encoder makes", endless, "dañado"},
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
