#include "images/bitmapreader.h"

#include <QIODevice>
#include <QImageReader>
#include <QPainter>
#include <QtEndian>

namespace {

constexpr int kBytesPerPixel = 4;
constexpr int kMegabyte = 1 << 20;

// More than either format can pack into a byte of a picture that is there. What claims more takes
// memory for nothing.
constexpr qint64 kMaxPixelsPerByte = 4096;

constexpr int kGifHead = 10; // bytes up to and with the height

// BMP: 14 bytes of file header, then an information header that begins with its own size.
constexpr int kBmpStart = 18;   // bytes up to and with that size
constexpr int kOldBmpHead = 26; // bytes with the older information header
constexpr int kBmpHead = 54;    // bytes with the smallest of the others
constexpr quint32 kOldInfoSize = 12;
constexpr quint32 kMinInfoSize = 40;
constexpr quint32 kCompressionNone = 0;
constexpr quint32 kCompressionMasks = 3; // uncompressed with other places of the channels

struct BmpHead {
    QSize size;
    bool isCompressed = false;
    qint64 dataBytes = 0; // that the pixels take at least
    qint64 dataOffset = 0;
};

QByteArray PeekHead(QIODevice& file, int length) {
    QByteArray head = file.peek(length);
    if (head.size() < length) {
        throw DamagedPicture();
    }
    return head;
}

template <class Number> Number At(const QByteArray& bytes, int offset) {
    return qFromLittleEndian<Number>(bytes.constData() + offset);
}

void CheckSize(const QIODevice& file, qint64 width, qint64 height) {
    if (width <= 0 || height <= 0) {
        throw DamagedPicture();
    }
    if (width > kMaxDecodedPixels || height > kMaxDecodedPixels ||
        width * height > kMaxDecodedPixels) {
        throw TooLargePicture(QSize(int(width), int(height)));
    }
    if (width * height > file.size() * kMaxPixelsPerByte) {
        throw DamagedPicture();
    }
}

BmpHead ReadBmpHead(QIODevice& file) {
    const quint32 infoSize = At<quint32>(PeekHead(file, kBmpStart), 14);
    if (infoSize != kOldInfoSize && infoSize < kMinInfoSize) {
        throw DamagedPicture();
    }
    const bool isOld = infoSize == kOldInfoSize;
    const QByteArray bytes = PeekHead(file, isOld ? kOldBmpHead : kBmpHead);
    const qint64 width = isOld ? At<quint16>(bytes, 18) : At<qint32>(bytes, 18);
    // Negative where the first row is the top one.
    const qint64 height = std::abs(isOld ? qint64(At<quint16>(bytes, 20)) : At<qint32>(bytes, 22));
    CheckSize(file, width, height);

    BmpHead head;
    head.size = QSize(int(width), int(height));
    head.dataOffset = At<quint32>(bytes, 10);
    const quint32 compression = isOld ? kCompressionNone : At<quint32>(bytes, 30);
    head.isCompressed = compression != kCompressionNone && compression != kCompressionMasks;
    if (head.isCompressed) {
        head.dataBytes = At<quint32>(bytes, 34);
    } else {
        const qint64 depth = At<quint16>(bytes, isOld ? 24 : 28);
        head.dataBytes = (width * depth + 31) / 32 * 4 * height; // rows are padded
    }
    return head;
}

void ReadWith(QImageReader& reader, QImage& image, QSize size) {
    QImageReader::setAllocationLimit(int(kMaxDecodedPixels * kBytesPerPixel / kMegabyte) + 1);
    if (!reader.read(&image) || image.size() != size) {
        throw DamagedPicture();
    }
}

QImage OnWhite(QImage image) {
    image.convertTo(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
    painter.fillRect(image.rect(), Qt::white);
    painter.end();
    return image;
}

} // namespace

QSize ReadGifSize(QIODevice& file) {
    const QByteArray head = PeekHead(file, kGifHead);
    const QSize size(At<quint16>(head, 6), At<quint16>(head, 8));
    CheckSize(file, size.width(), size.height());
    return size;
}

QSize ReadBmpSize(QIODevice& file) {
    return ReadBmpHead(file).size;
}

QImage ReadGif(QIODevice& file) {
    const QSize size = ReadGifSize(file);
    QImageReader reader(&file, "gif");
    QImage image;
    ReadWith(reader, image, size);
    if (image.hasAlphaChannel()) {
        image = OnWhite(std::move(image));
    }
    image.convertTo(QImage::Format_RGB32);
    return image;
}

QImage ReadBmp(QIODevice& file) {
    const BmpHead head = ReadBmpHead(file);
    if (file.size() - head.dataOffset < head.dataBytes) {
        throw DamagedPicture();
    }
    QImageReader reader(&file, "bmp");
    // Pixels that packed runs pass over stay as they are: they must not show old memory.
    QImage image(head.size, reader.imageFormat());
    image.fill(0);
    ReadWith(reader, image, head.size);
    image.convertTo(QImage::Format_RGB32);
    return image;
}
