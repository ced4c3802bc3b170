#include "images/exif.h"

#include <QTransform>
#include <optional>

namespace {

constexpr int kTagInteropIndex = 0x0001;
constexpr int kTagOrientation = 0x0112;
constexpr int kTagExifFolder = 0x8769;
constexpr int kTagInteropFolder = 0xA005;
constexpr int kEntrySize = 12; // bytes: tag, type, count, value
constexpr int kValueOffset = 8;

// Read by hand: folders that point to each other within 64 KB, which is what a block can have, keep
// libexif 0.6 busy for more than a minute. Here each of three folders is looked through once.
//
// Numbers of either byte order at any offset; nothing beyond the block.
class TiffBlock {
public:
    explicit TiffBlock(QByteArrayView bytes) : bytes_(bytes) {
        bigEndian_ = bytes.startsWith("MM");
        valid_ = (bigEndian_ || bytes.startsWith("II")) && Short(2) == 42;
    }
    bool IsValid() const { return valid_; }

    std::optional<quint32> Short(quint32 offset) const { return Number(offset, 2); }
    std::optional<quint32> Long(quint32 offset) const { return Number(offset, 4); }

    // Offset of the value of `tag` in the folder at `folder`.
    std::optional<quint32> FindValue(std::optional<quint32> folder, quint32 tag) const {
        if (!folder) {
            return {};
        }
        const quint32 count = Short(*folder).value_or(0);
        for (quint32 i = 0; i < count; ++i) {
            const qint64 entry = qint64(*folder) + 2 + qint64(i) * kEntrySize;
            if (entry + kEntrySize > bytes_.size()) {
                break;
            }
            if (Short(quint32(entry)) == tag) {
                return quint32(entry) + kValueOffset;
            }
        }
        return {};
    }

    // The folder that the value of `tag` points to.
    std::optional<quint32> FindFolder(std::optional<quint32> folder, quint32 tag) const {
        const std::optional<quint32> value = FindValue(folder, tag);
        return value ? Long(*value) : std::nullopt;
    }

    QByteArrayView Text(quint32 offset, int length) const {
        return qint64(offset) + length <= bytes_.size() ? bytes_.sliced(offset, length)
                                                        : QByteArrayView();
    }

private:
    std::optional<quint32> Number(quint32 offset, int length) const {
        if (qint64(offset) + length > bytes_.size()) {
            return {};
        }
        quint32 number = 0;
        for (int i = 0; i < length; ++i) {
            const int place = bigEndian_ ? length - 1 - i : i;
            number |= quint32(uchar(bytes_[offset + i])) << (8 * place);
        }
        return number;
    }

    QByteArrayView bytes_;
    bool bigEndian_ = false;
    bool valid_ = false;
};

} // namespace

ExifFacts ReadExif(QByteArrayView tiff) {
    const TiffBlock block(tiff);
    ExifFacts facts;
    if (!block.IsValid()) {
        return facts;
    }
    const std::optional<quint32> root = block.Long(4);
    if (const auto value = block.FindValue(root, kTagOrientation)) {
        const quint32 orientation = block.Short(*value).value_or(1);
        facts.orientation = orientation >= 1 && orientation <= 8 ? int(orientation) : 1;
    }
    const auto exif = block.FindFolder(root, kTagExifFolder);
    const auto interop = block.FindFolder(exif, kTagInteropFolder);
    if (const auto value = block.FindValue(interop, kTagInteropIndex)) {
        facts.adobeRgb = block.Text(*value, 3) == "R03";
    }
    return facts;
}

bool ExchangesSides(int orientation) {
    return orientation >= 5;
}

QImage TurnUpright(const QImage& image, int orientation) {
    QImage turned =
        ExchangesSides(orientation) ? image.transformed(QTransform().rotate(90)) : image;
    switch (orientation) {
    case 2:
    case 5:
        return turned.mirrored(true, false);
    case 4:
    case 7:
        return turned.mirrored(false, true);
    case 3:
    case 8:
        return turned.mirrored(true, true);
    default:
        return turned;
    }
}
