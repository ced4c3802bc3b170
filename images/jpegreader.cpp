#include "images/jpegreader.h"

#include "images/colors.h"
#include "images/exif.h"
#include "images/jpegguard.h"
#include "images/jpegsource.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int kExifMarker = JPEG_APP0 + 1;
constexpr int kProfileMarker = JPEG_APP0 + 2;
constexpr unsigned int kWholeMarker = 0xFFFF;
constexpr QByteArrayView kExifMark("Exif\0\0", 6);

// Scans of a progressive picture. Encoders make a dozen; each one costs a pass over the picture.
constexpr int kMaxScans = 64;

// Bytes of coefficients, which a picture of several scans keeps whole until its last one.
constexpr qint64 kMaxCoefficientBytes = qint64(1) << 30;

constexpr int kBlock = DCTSIZE; // pixels
constexpr int kFullScale = 8;   // eighths
// Eighths at which the decoder is fast; those between cost more than the next larger one.
constexpr int kFastScales[] = {1, 2, 4, kFullScale};

void BoundScans(j_common_ptr codec) {
    if (reinterpret_cast<j_decompress_ptr>(codec)->input_scan_number > kMaxScans) {
        FailJpeg(codec);
    }
}

int ScaledSide(JDIMENSION side, int eighths) {
    return int((qint64(side) * eighths + kFullScale - 1) / kFullScale);
}

struct DecoderState : jpeg_decompress_struct {
    DecoderState() : jpeg_decompress_struct{} {}
    ~DecoderState() { jpeg_destroy_decompress(this); }
    DecoderState(const DecoderState&) = delete;
    DecoderState& operator=(const DecoderState&) = delete;
};

class JpegDecoder {
public:
    explicit JpegDecoder(QIODevice& file);

    QSize UprightSize() const;
    DecodedPicture Decode(QSize neededSize);

private:
    void RefuseAbsurd() const;
    void ReadFacts();
    void ChooseColors();
    int ChooseScale(QSize neededSize) const;
    bool IsComplete() const;
    void DecodeRow(JSAMPROW row);
    QByteArray ReadProfile();

    JpegGuard guard_;
    JpegSource source_;
    jpeg_progress_mgr progress_{};
    DecoderState decoder_;
    qint64 fileSize_;
    ExifFacts facts_;
    std::unique_ptr<ColorConverter> converter_;
};

JpegDecoder::JpegDecoder(QIODevice& file) : source_(file), fileSize_(file.size()) {
    decoder_.err = &guard_.manager;
    RunGuarded(guard_, [this] { jpeg_create_decompress(&decoder_); });
    decoder_.src = &source_.manager;
    progress_.progress_monitor = BoundScans;
    decoder_.progress = &progress_;
    RunGuarded(guard_, [this] {
        jpeg_save_markers(&decoder_, kExifMarker, kWholeMarker);
        jpeg_save_markers(&decoder_, kProfileMarker, kWholeMarker);
        jpeg_read_header(&decoder_, TRUE);
    });
    RefuseAbsurd();
    ReadFacts();
}

// Refuses what would take much memory: too many pixels, and more than the file can hold, since even
// an empty block takes a bit.
void JpegDecoder::RefuseAbsurd() const {
    const qint64 width = decoder_.image_width;
    const qint64 height = decoder_.image_height;
    if (width * height > kMaxPicturePixels) {
        throw TooLargePicture(QSize(int(width), int(height)));
    }
    const qint64 blocks = ((width + kBlock - 1) / kBlock) * ((height + kBlock - 1) / kBlock);
    if (blocks > fileSize_ * 8) {
        throw DamagedPicture();
    }
}

void JpegDecoder::ReadFacts() {
    for (auto marker = decoder_.marker_list; marker != nullptr; marker = marker->next) {
        const QByteArrayView data(reinterpret_cast<const char*>(marker->data),
                                  qsizetype(marker->data_length));
        if (marker->marker == kExifMarker && data.startsWith(kExifMark)) {
            facts_ = ReadExif(data.sliced(kExifMark.size()));
            return;
        }
    }
}

QSize JpegDecoder::UprightSize() const {
    const QSize size(int(decoder_.image_width), int(decoder_.image_height));
    return ExchangesSides(facts_.orientation) ? size.transposed() : size;
}

QByteArray JpegDecoder::ReadProfile() {
    JOCTET* data = nullptr;
    unsigned int length = 0;
    RunGuarded(guard_, [&] { jpeg_read_icc_profile(&decoder_, &data, &length); });
    QByteArray profile(reinterpret_cast<const char*>(data), qsizetype(length));
    std::free(data);
    return profile;
}

void JpegDecoder::ChooseColors() {
    const QByteArray profile = ReadProfile();
    decoder_.out_color_space = JCS_EXT_BGRA;
    switch (decoder_.num_components) {
    case 1:
        converter_ = MakeProfileConverter(profile, ColorModel::Grey, false);
        if (converter_) {
            decoder_.out_color_space = JCS_GRAYSCALE;
        }
        break;
    case 3:
        converter_ = profile.isEmpty() && facts_.adobeRgb
                         ? MakeAdobeRgbConverter()
                         : MakeProfileConverter(profile, ColorModel::Rgb, false);
        break;
    case 4: {
        // Whoever writes Adobe's marker writes inks inverted.
        const bool inverted = decoder_.saw_Adobe_marker != 0;
        decoder_.out_color_space = JCS_CMYK;
        converter_ = MakeProfileConverter(profile, ColorModel::Cmyk, inverted);
        if (!converter_) {
            converter_ = MakePlainCmykConverter(inverted);
        }
        break;
    }
    default:
        throw DamagedPicture();
    }
}

// Eighths.
int JpegDecoder::ChooseScale(QSize neededSize) const {
    const QSize needed = ExchangesSides(facts_.orientation) ? neededSize.transposed() : neededSize;
    const JDIMENSION width = decoder_.image_width;
    const JDIMENSION height = decoder_.image_height;
    int chosen = kFullScale;
    for (const int scale : kFastScales) {
        if (!needed.isEmpty() && ScaledSide(width, scale) >= 2 * qint64(needed.width()) &&
            ScaledSide(height, scale) >= 2 * qint64(needed.height())) {
            chosen = scale;
            break;
        }
    }
    while (qint64(ScaledSide(width, chosen)) * ScaledSide(height, chosen) > kMaxDecodedPixels) {
        --chosen;
    }
    return chosen;
}

// A file may end between two scans: then a component is missing or known too coarsely.
bool JpegDecoder::IsComplete() const {
    for (int i = 0; i < decoder_.num_components; ++i) {
        if (decoder_.comp_info[i].quant_table == nullptr) {
            return false;
        }
        const int* missingBits = decoder_.coef_bits != nullptr ? decoder_.coef_bits[i] : nullptr;
        if (source_.ended && missingBits != nullptr &&
            std::any_of(missingBits, missingBits + DCTSIZE2, [](int bits) { return bits != 0; })) {
            return false;
        }
    }
    return true;
}

void JpegDecoder::DecodeRow(JSAMPROW row) {
    RunGuarded(guard_, [&] {
        while (jpeg_read_scanlines(&decoder_, &row, 1) == 0) {
        }
    });
}

qint64 CoefficientBytes(jpeg_decompress_struct& decoder) {
    qint64 blocks = 0;
    for (int i = 0; i < decoder.num_components; ++i) {
        const jpeg_component_info& component = decoder.comp_info[i];
        blocks += qint64(component.width_in_blocks) * component.height_in_blocks;
    }
    return blocks * DCTSIZE2 * qint64(sizeof(JCOEF));
}

DecodedPicture JpegDecoder::Decode(QSize neededSize) {
    ChooseColors();
    if (jpeg_has_multiple_scans(&decoder_) != 0 &&
        CoefficientBytes(decoder_) > kMaxCoefficientBytes) {
        throw TooLargePicture(UprightSize());
    }
    decoder_.scale_num = unsigned(ChooseScale(neededSize));
    decoder_.scale_denom = kFullScale;
    RunGuarded(guard_, [this] { jpeg_start_decompress(&decoder_); });
    if (!IsComplete()) {
        throw DamagedPicture();
    }

    const int width = int(decoder_.output_width);
    const int height = int(decoder_.output_height);
    QImage image = AllocatePicture(QSize(width, height));
    const bool isGrey = decoder_.out_color_space == JCS_GRAYSCALE;
    std::vector<uchar> greys(isGrey ? std::size_t(width) : 0);
    for (int y = 0; y < height; ++y) {
        uchar* row = image.scanLine(y);
        uchar* decoded = isGrey ? greys.data() : row;
        DecodeRow(decoded);
        if (converter_) {
            converter_->ConvertRow(decoded, reinterpret_cast<QRgb*>(row), width);
        }
    }
    return {TurnUpright(image, facts_.orientation), UprightSize()};
}

} // namespace

QSize ReadJpegSize(QIODevice& file) {
    return JpegDecoder(file).UprightSize();
}

DecodedPicture ReadJpeg(QIODevice& file, QSize neededSize) {
    return JpegDecoder(file).Decode(neededSize);
}
