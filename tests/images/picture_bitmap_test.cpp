#include "images/picturefile.h"
#include "tests/support/testpictures.h"

#include <gtest/gtest.h>

namespace {

constexpr quint32 kRle8 = 1;
constexpr quint32 kMasks = 3;

QImage Read(const QByteArray& bytes) {
    return ReadPictureBytes(bytes, "mapa").image;
}

QByteArray Hex(const char* text) {
    return QByteArray::fromHex(text);
}

// Two rows of four fields with a padded end, the bottom row first.
const QByteArray kTrueColors = Hex("C04030 80D0E0 0000 2030C0 40A020 0000");
// The palette of the four fields: blue, green, red, unused.
const QByteArray kPalette = Hex("2030C000 40A02000 C0403000 80D0E000");

const std::vector<QRgb> kGifPalette{kFieldA, kFieldB, kFieldC, kFieldD};

} // namespace

TEST(BitmapReader, EveryKindOfBmpGivesItsColors) {
    const QByteArray bottomUp = Hex("02030000 00010000"); // indices, padded
    const QByteArray topDown = Hex("00010000 02030000");
    const struct {
        const char* what;
        QByteArray bytes;
    } kCases[] = {
        {"24 bits", MakeBmp({2, 2}, kTrueColors)},
        {"24 bits, top row first",
         MakeBmp({2, 2}, kTrueColors.mid(8) + kTrueColors.left(8), {.topDown = true})},
        {"24 bits, old header", MakeBmp({2, 2}, kTrueColors, {.oldHeader = true})},
        {"8 bits",
         MakeBmp({2, 2}, bottomUp, {.depth = 8, .table = kPalette.leftJustified(1024, 0)})},
        {"8 bits, top row first",
         MakeBmp({2, 2}, topDown,
                 {.depth = 8, .topDown = true, .table = kPalette.leftJustified(1024, 0)})},
        {"8 bits, packed runs",
         MakeBmp({2, 2}, Hex("0102 0103 0000 0100 0101 0001"),
                 {.depth = 8, .compression = kRle8, .table = kPalette.leftJustified(1024, 0)})},
        {"16 bits of 5 each", MakeBmp({2, 2}, Hex("1819 5073 C460 8812"), {.depth = 16})},
        {"16 bits of 5, 6 and 5",
         MakeBmp({2, 2}, Hex("1832 90E6 84C1 0825"),
                 {.depth = 16, .compression = kMasks, .table = Hex("00F80000 E0070000 1F000000")})},
        {"32 bits, nothing in the fourth channel",
         MakeBmp({2, 2}, Hex("C0403000 80D0E000 2030C000 40A02000"), {.depth = 32})},
    };
    for (const auto& c : kCases) {
        EXPECT_EQ(CornerFields(Read(c.bytes)), "ABCD") << c.what;
    }
}

TEST(BitmapReader, GifGivesItsFirstFrameAsTheScreenShowsIt) {
    const GifFrame whole{.size = {2, 2}, .pixels = Hex("00010203"), .palette = kGifPalette};
    const GifFrame other{
        .size = {2, 2}, .pixels = Hex("00000000"), .palette = {kFieldD, kFieldA, kFieldA, kFieldA}};
    EXPECT_EQ(CornerFields(Read(MakeGif({2, 2}, {whole}))), "ABCD");
    EXPECT_EQ(CornerFields(Read(MakeGif({2, 2}, {whole, other}))), "ABCD") << "animated";

    QByteArray rows;
    for (int y = 0; y < 16; ++y) {
        rows += QByteArray(8, char(y < 8 ? 0 : 2)) + QByteArray(8, char(y < 8 ? 1 : 3));
    }
    const GifFrame interlaced{
        .size = {16, 16}, .pixels = rows, .palette = kGifPalette, .interlaced = true};
    const QImage woven = Read(MakeGif({16, 16}, {interlaced}));
    EXPECT_EQ(CornerFields(woven), "ABCD");
    EXPECT_EQ(CornerFields(woven.copy(1, 1, 14, 14)), "ABCD");

    GifFrame corner = whole;
    corner.place = {2, 1};
    corner.transparent = 3;
    const QImage placed = Read(MakeGif({5, 4}, {corner}));
    EXPECT_EQ(placed.size(), QSize(5, 4));
    EXPECT_EQ(placed.pixel(0, 0), 0xFFFFFFFF) << "outside the frame";
    EXPECT_EQ(placed.pixel(2, 1), kFieldA);
    EXPECT_EQ(placed.pixel(3, 2), 0xFFFFFFFF) << "transparent";
}

TEST(BitmapReader, PixelsThatAFilePassesOverHaveTheFirstColor) {
    const QByteArray table = kPalette.leftJustified(1024, 0);
    const QByteArray bytes = MakeBmp({200, 100}, Hex("0102 0103 0001"),
                                     {.depth = 8, .compression = kRle8, .table = table});
    QByteArray(20'000, '\x5A').clear(); // what memory held before must not show
    const QImage image = Read(bytes);
    EXPECT_LE(ColorDistance(image.pixel(0, 99), kFieldC), 0);
    for (int y = 0; y < 99; ++y) {
        ASSERT_EQ(image.pixel(y, y), kFieldA) << y;
    }
}

TEST(BitmapReader, PicturesAreShrunkToTwiceTheNeededSize) {
    const QByteArray row = Hex("C04030").repeated(40) + Hex("80D0E0").repeated(40);
    const QByteArray bmp = MakeBmp({80, 60}, row.repeated(60));
    const DecodedPicture picture = ReadPictureBytes(bmp, "mapa", QSize(10, 10));
    EXPECT_EQ(picture.image.size(), QSize(20, 20));
    EXPECT_EQ(picture.naturalSize, QSize(80, 60));
    EXPECT_EQ(CornerFields(picture.image), "CDCD");
}

TEST(BitmapReader, DamagedOrAbsurdFilesAreRefused) {
    const QByteArray gif =
        MakeGif({2, 2}, {{.size = {2, 2}, .pixels = Hex("00010203"), .palette = kGifPalette}});
    const QByteArray bmp = MakeBmp({2, 2}, kTrueColors);
    const QByteArray packed = MakeBmp({2, 2}, Hex("0102 0103 0000 0100 0101 0001"),
                                      {.depth = 8, .compression = kRle8, .table = kPalette});
    const struct {
        const char* what;
        QByteArray bytes;
        const char* reason;
    } kCases[] = {
        {"GIF of its mark alone", gif.left(6), "dañado"},
        {"GIF without a frame", gif.left(13) + ";", "dañado"},
        {"GIF cut within its frame", gif.left(gif.size() - 6), "dañado"},
        {"GIF of an absurd size", QByteArray(gif).replace(6, 4, "\xFF\xFF\xFF\xFF"), "demasiado"},
        {"GIF of a size beyond its bytes", QByteArray(gif).replace(6, 4, Hex("00200020")),
         "dañado"},
        {"GIF of no size", QByteArray(gif).replace(6, 4, QByteArray(4, '\0')), "dañado"},
        {"BMP of its mark alone", bmp.left(2), "dañado"},
        {"BMP cut within its pixels", bmp.chopped(5), "dañado"},
        {"packed BMP cut within its runs", packed.chopped(4), "dañado"},
        {"BMP of an absurd size", MakeBmp({2000000, 2000000}, {}), "demasiado"},
        {"BMP of no size", MakeBmp({0, 2}, kTrueColors), "dañado"},
        {"BMP with an unknown header", QByteArray(bmp).replace(14, 4, Hex("0D000000")), "dañado"},
    };
    for (const auto& c : kCases) {
        const QString failure = ReadingFailure(c.bytes);
        EXPECT_TRUE(failure.contains(c.reason)) << c.what << ": " << failure.toStdString();
    }
}
