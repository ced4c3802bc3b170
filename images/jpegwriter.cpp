#include "images/jpegwriter.h"

#include "images/jpegguard.h"

#include <cstdlib>

namespace {

struct EncoderState : jpeg_compress_struct {
    EncoderState() : jpeg_compress_struct{} {}
    ~EncoderState() {
        jpeg_destroy_compress(this);
        std::free(bytes);
    }
    EncoderState(const EncoderState&) = delete;
    EncoderState& operator=(const EncoderState&) = delete;

    unsigned char* bytes = nullptr;
    unsigned long length = 0;
};

} // namespace

QByteArray EncodeJpeg(const QImage& image) {
    const QImage pixels = image.convertToFormat(QImage::Format_RGB32);
    JpegGuard guard;
    EncoderState encoder;
    encoder.err = &guard.manager;
    RunGuarded(guard, [&] {
        jpeg_create_compress(&encoder);
        jpeg_mem_dest(&encoder, &encoder.bytes, &encoder.length);
        encoder.image_width = JDIMENSION(pixels.width());
        encoder.image_height = JDIMENSION(pixels.height());
        encoder.input_components = 4;
        encoder.in_color_space = JCS_EXT_BGRX; // QRgb on a little-endian machine
        jpeg_set_defaults(&encoder);
        jpeg_set_quality(&encoder, kJpegQuality, TRUE);
        // A millisecond a picture for some three to eight hundredths of every transfer.
        encoder.optimize_coding = TRUE;
        jpeg_start_compress(&encoder, TRUE);
        for (int y = 0; y < pixels.height(); ++y) {
            auto* row = const_cast<JSAMPROW>(pixels.constScanLine(y));
            jpeg_write_scanlines(&encoder, &row, 1);
        }
        jpeg_finish_compress(&encoder);
    });
    return QByteArray(reinterpret_cast<const char*>(encoder.bytes), qsizetype(encoder.length));
}
