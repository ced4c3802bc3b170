#include "tests/support/testpictures.h"

#include "images/picturefile.h"

#include <QPainter>
#include <QtEndian>
#include <cstdlib>
#include <lcms2.h>

namespace {

constexpr int kSegmentEnd = 0xDA; // start of the picture's data

// Little-endian numbers one after the other, or big-endian ones.
class Bytes {
public:
    explicit Bytes(bool bigEndian = false) : bigEndian_(bigEndian) {}
    Bytes& Put(quint64 number, int length) {
        for (int i = 0; i < length; ++i) {
            const int place = bigEndian_ ? length - 1 - i : i;
            bytes_.append(char(number >> (8 * place)));
        }
        return *this;
    }
    Bytes& Put(const QByteArray& bytes) {
        bytes_.append(bytes);
        return *this;
    }
    const QByteArray& Get() const { return bytes_; }

private:
    bool bigEndian_;
    QByteArray bytes_;
};

bool IsInks(const JpegRecipe& recipe) {
    return recipe.model == JCS_CMYK || recipe.model == JCS_YCCK;
}

void PutPixel(QRgb color, const JpegRecipe& recipe, uchar* to) {
    const uchar mask = IsInks(recipe) && !recipe.adobeMarker ? 255 : 0;
    const uchar bytes[] = {uchar(qRed(color)), uchar(qGreen(color)), uchar(qBlue(color)), 255};
    if (recipe.model == JCS_GRAYSCALE) {
        *to = uchar(qGray(color));
        return;
    }
    for (int i = 0; i < (IsInks(recipe) ? 4 : 3); ++i) {
        to[i] = bytes[i] ^ mask;
    }
}

void Configure(jpeg_compress_struct& encoder, const JpegRecipe& recipe) {
    const bool isGrey = recipe.model == JCS_GRAYSCALE;
    encoder.input_components = IsInks(recipe) ? 4 : isGrey ? 1 : 3;
    encoder.in_color_space = IsInks(recipe) ? JCS_CMYK : isGrey ? JCS_GRAYSCALE : JCS_RGB;
    jpeg_set_defaults(&encoder);
    jpeg_set_colorspace(&encoder, recipe.model);
    jpeg_set_quality(&encoder, recipe.quality, TRUE);
    if (IsInks(recipe)) {
        encoder.write_Adobe_marker = recipe.adobeMarker ? TRUE : FALSE;
    }
    if (recipe.progressive) {
        jpeg_simple_progression(&encoder);
    }
}

QByteArray SaveProfile(cmsHPROFILE profile) {
    cmsUInt32Number length = 0;
    cmsSaveProfileToMem(profile, nullptr, &length);
    QByteArray bytes(qsizetype(length), '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &length);
    cmsCloseProfile(profile);
    return bytes;
}

cmsInt32Number SwappedInksToLab(const cmsUInt16Number in[], cmsUInt16Number out[], void*) {
    const double light = 1 - in[3] / 65535.0;
    const double red = 1 - in[1] / 65535.0; // magenta takes the light that cyan should
    const double green = 1 - in[0] / 65535.0;
    const double blue = 1 - in[2] / 65535.0;
    const cmsCIELab lab{100 * light * (red + green + blue) / 3, 80 * light * (red - green),
                        60 * light * ((red + green) / 2 - blue)};
    cmsFloat2LabEncodedV2(out, &lab);
    return TRUE;
}

// Indices as codes of three bits with a clear code before the dictionary would grow them.
QByteArray GifCodes(const QByteArray& indices) {
    constexpr int kClear = 4;
    constexpr int kEnd = 5;
    QByteArray bytes;
    int held = 0;
    int bits = 0;
    const auto put = [&](int code) {
        held |= code << bits;
        for (bits += 3; bits >= 8; bits -= 8, held >>= 8) {
            bytes.append(char(held & 0xFF));
        }
    };
    for (qsizetype i = 0; i < indices.size(); ++i) {
        if (i % 2 == 0) {
            put(kClear);
        }
        put(indices[i]);
    }
    put(kEnd);
    bytes.append(char(held));
    return bytes;
}

QByteArray Interlaced(const GifFrame& frame) {
    QByteArray rows;
    constexpr int kPasses[][2] = {{0, 8}, {4, 8}, {2, 4}, {1, 2}};
    for (const auto& [start, step] : kPasses) {
        for (int y = start; y < frame.size.height(); y += step) {
            rows += frame.pixels.mid(qsizetype(y) * frame.size.width(), frame.size.width());
        }
    }
    return rows;
}

QByteArray GifFrameBytes(const GifFrame& frame) {
    Bytes bytes;
    const bool hasTransparent = frame.transparent >= 0;
    bytes.Put("\x21\xF9\x04").Put(hasTransparent ? 1 : 0, 1).Put(10, 2);
    bytes.Put(hasTransparent ? quint64(frame.transparent) : 0, 1).Put(0, 1);
    bytes.Put("\x2C").Put(quint64(frame.place.x()), 2).Put(quint64(frame.place.y()), 2);
    bytes.Put(quint64(frame.size.width()), 2).Put(quint64(frame.size.height()), 2);
    bytes.Put(0x80 | (frame.interlaced ? 0x40 : 0) | 1, 1); // four colours of its own
    for (std::size_t i = 0; i < 4; ++i) {
        const QRgb color = i < frame.palette.size() ? frame.palette[i] : 0;
        bytes.Put(quint64(qRed(color)), 1).Put(quint64(qGreen(color)), 1);
        bytes.Put(quint64(qBlue(color)), 1);
    }
    bytes.Put(2, 1); // bits of an index
    const QByteArray codes = GifCodes(frame.interlaced ? Interlaced(frame) : frame.pixels);
    for (qsizetype i = 0; i < codes.size(); i += 255) {
        const QByteArray block = codes.mid(i, 255);
        bytes.Put(quint64(block.size()), 1).Put(block);
    }
    return bytes.Put(0, 1).Get();
}

} // namespace

QImage FourFields(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    const int x = size.width() / 2;
    const int y = size.height() / 2;
    painter.fillRect(0, 0, x, y, QColor(kFieldA));
    painter.fillRect(x, 0, size.width() - x, y, QColor(kFieldB));
    painter.fillRect(0, y, x, size.height() - y, QColor(kFieldC));
    painter.fillRect(x, y, size.width() - x, size.height() - y, QColor(kFieldD));
    return image;
}

QByteArray CornerFields(const QImage& image, int tolerance) {
    const int right = image.width() - 1;
    const int bottom = image.height() - 1;
    const QRgb corners[] = {image.pixel(0, 0), image.pixel(right, 0), image.pixel(0, bottom),
                            image.pixel(right, bottom)};
    constexpr QRgb kFields[] = {kFieldA, kFieldB, kFieldC, kFieldD};
    QByteArray letters;
    for (const QRgb corner : corners) {
        char letter = '?';
        for (int i = 0; i < 4; ++i) {
            if (ColorDistance(corner, kFields[i]) <= tolerance) {
                letter = char('A' + i);
            }
        }
        letters += letter;
    }
    return letters;
}

int ColorDistance(QRgb a, QRgb b) {
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
}

QByteArray MakeJpeg(const QImage& image, const JpegRecipe& recipe) {
    jpeg_compress_struct encoder{};
    jpeg_error_mgr errors{};
    encoder.err = jpeg_std_error(&errors);
    jpeg_create_compress(&encoder);
    unsigned char* data = nullptr;
    unsigned long length = 0;
    jpeg_mem_dest(&encoder, &data, &length);
    encoder.image_width = JDIMENSION(image.width());
    encoder.image_height = JDIMENSION(image.height());
    Configure(encoder, recipe);
    jpeg_start_compress(&encoder, TRUE);
    if (!recipe.profile.isEmpty()) {
        jpeg_write_icc_profile(&encoder,
                               reinterpret_cast<const JOCTET*>(recipe.profile.constData()),
                               unsigned(recipe.profile.size()));
    }
    std::vector<uchar> row(std::size_t(image.width()) * encoder.input_components);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            PutPixel(image.pixel(x, y), recipe,
                     row.data() + std::size_t(x) * encoder.input_components);
        }
        JSAMPROW pointer = row.data();
        jpeg_write_scanlines(&encoder, &pointer, 1);
    }
    jpeg_finish_compress(&encoder);
    jpeg_destroy_compress(&encoder);
    QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(length));
    std::free(data);
    return bytes;
}

QByteArray WithSegment(const QByteArray& jpeg, int marker, const QByteArray& content) {
    Bytes segment(true);
    segment.Put(0xFF, 1).Put(quint64(marker), 1).Put(quint64(content.size() + 2), 2).Put(content);
    return QByteArray(jpeg).insert(2, segment.Get());
}

QByteArray ExifBlock(int orientation, bool bigEndian, bool adobeRgb) {
    constexpr int kShort = 3;
    constexpr int kLong = 4;
    constexpr int kText = 2;
    Bytes bytes(bigEndian);
    bytes.Put(bigEndian ? "MM" : "II").Put(42, 2).Put(8, 4);
    bytes.Put(2, 2); // the root folder at 8: two entries, 30 bytes
    bytes.Put(0x0112, 2).Put(kShort, 2).Put(1, 4).Put(quint64(orientation), 2).Put(0, 2);
    bytes.Put(0x8769, 2).Put(kLong, 2).Put(1, 4).Put(38, 4).Put(0, 4);
    bytes.Put(1, 2); // the camera's folder at 38
    bytes.Put(0xA005, 2).Put(kLong, 2).Put(1, 4).Put(56, 4).Put(0, 4);
    bytes.Put(1, 2); // the interoperability folder at 56
    bytes.Put(0x0001, 2).Put(kText, 2).Put(4, 4);
    bytes.Put(QByteArray(adobeRgb ? "R03" : "R98", 4)).Put(0, 4);
    return QByteArray("Exif\0\0", 6) + bytes.Get();
}

std::vector<int> SegmentsOf(const QByteArray& jpeg) {
    std::vector<int> markers;
    qsizetype at = 2;
    while (at + 4 <= jpeg.size() && (markers.empty() || markers.back() != kSegmentEnd)) {
        markers.push_back(uchar(jpeg[at + 1]));
        at += 2 + qFromBigEndian<quint16>(jpeg.constData() + at + 2);
    }
    return markers;
}

QByteArray SrgbProfile() {
    return SaveProfile(cmsCreate_sRGBProfile());
}

QByteArray AdobeRgbProfile() {
    const cmsCIExyY white{0.3127, 0.3290, 1.0};
    const cmsCIExyYTRIPLE primaries{{0.64, 0.33, 1.0}, {0.21, 0.71, 1.0}, {0.15, 0.06, 1.0}};
    cmsToneCurve* curve = cmsBuildGamma(nullptr, 2.19921875);
    cmsToneCurve* curves[] = {curve, curve, curve};
    cmsHPROFILE profile = cmsCreateRGBProfile(&white, &primaries, curves);
    cmsFreeToneCurve(curve);
    return SaveProfile(profile);
}

QByteArray LinearGreyProfile() {
    cmsToneCurve* curve = cmsBuildGamma(nullptr, 1.0);
    cmsHPROFILE profile = cmsCreateGrayProfile(cmsD50_xyY(), curve);
    cmsFreeToneCurve(curve);
    return SaveProfile(profile);
}

QByteArray SwappedCmykProfile() {
    cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
    cmsSetProfileVersion(profile, 2.1);
    cmsSetDeviceClass(profile, cmsSigOutputClass);
    cmsSetColorSpace(profile, cmsSigCmykData);
    cmsSetPCS(profile, cmsSigLabData);
    cmsPipeline* pipeline = cmsPipelineAlloc(nullptr, 4, 3);
    cmsStage* stage = cmsStageAllocCLut16bit(nullptr, 3, 4, 3, nullptr);
    cmsStageSampleCLut16bit(stage, SwappedInksToLab, nullptr, 0);
    cmsPipelineInsertStage(pipeline, cmsAT_BEGIN, stage);
    cmsWriteTag(profile, cmsSigAToB0Tag, pipeline);
    cmsWriteTag(profile, cmsSigAToB1Tag, pipeline);
    cmsPipelineFree(pipeline);
    return SaveProfile(profile);
}

QByteArray MakeGif(QSize screen, const std::vector<GifFrame>& frames) {
    Bytes bytes;
    bytes.Put("GIF89a").Put(quint64(screen.width()), 2).Put(quint64(screen.height()), 2);
    bytes.Put(0, 1).Put(0, 1).Put(0, 1); // no palette for all
    for (const GifFrame& frame : frames) {
        bytes.Put(GifFrameBytes(frame));
    }
    return bytes.Put("\x3B").Get();
}

QByteArray MakeBmp(QSize size, const QByteArray& pixels, const BmpRecipe& recipe) {
    constexpr int kFileHeader = 14;
    const int infoSize = recipe.oldHeader ? 12 : 40;
    const qsizetype offset = kFileHeader + infoSize + recipe.table.size();
    Bytes bytes;
    bytes.Put("BM").Put(quint64(offset + pixels.size()), 4).Put(0, 4).Put(quint64(offset), 4);
    const int side = recipe.oldHeader ? 2 : 4;
    const int height = recipe.topDown ? -size.height() : size.height();
    bytes.Put(quint64(infoSize), 4).Put(quint64(size.width()), side).Put(quint64(height), side);
    bytes.Put(1, 2).Put(quint64(recipe.depth), 2);
    if (!recipe.oldHeader) {
        bytes.Put(recipe.compression, 4).Put(quint64(pixels.size()), 4).Put(0, 8);
        bytes.Put(0, 4).Put(0, 4);
    }
    return bytes.Put(recipe.table).Put(pixels).Get();
}

QString ReadingFailure(const QByteArray& bytes) {
    try {
        ReadPictureBytes(bytes, "foto", {});
        return {};
    } catch (const PictureError& error) {
        return error.Text();
    }
}
