// Any bytes as a picture: they give a picture within its limits or PictureError, nothing else.
#include "images/picturefile.h"

#include <QCoreApplication>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    static QCoreApplication application(*argc, *argv); // finds the toolkit's picture readers
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    // The length chooses how much the picture may be shrunk.
    const QSize needed = size % 3 == 0 ? QSize() : QSize(int(size % 40) + 1, int(size % 30) + 1);
    try {
        const DecodedPicture picture = ReadPictureBytes(bytes, "entrada", needed);
        const qint64 pixels = qint64(picture.image.width()) * picture.image.height();
        if (picture.image.isNull() || picture.image.format() != QImage::Format_RGB32 ||
            pixels > kMaxDecodedPixels) {
            std::abort();
        }
        // Every pixel has to be there.
        volatile QRgb last =
            picture.image.pixel(picture.image.width() - 1, picture.image.height() - 1);
        (void)last;
    } catch (const PictureError&) {
    }
    return 0;
}
