#include "images/jpegsource.h"

#include <algorithm>

namespace {

// Bytes. The decoder is slow near the end of each piece, so pieces are large.
constexpr int kPieceSize = 256 * 1024;

constexpr JOCTET kEndMarker[] = {0xFF, JPEG_EOI};

JpegSource& Source(j_decompress_ptr decoder) {
    return *reinterpret_cast<JpegSource*>(decoder->src);
}

void StartSource(j_decompress_ptr) {}

boolean FillBuffer(j_decompress_ptr decoder) {
    JpegSource& source = Source(decoder);
    const qint64 count = source.file->read(reinterpret_cast<char*>(source.buffer.data()),
                                           qint64(source.buffer.size()));
    source.ended = count <= 0;
    source.manager.next_input_byte = source.ended ? kEndMarker : source.buffer.data();
    source.manager.bytes_in_buffer = source.ended ? sizeof kEndMarker : std::size_t(count);
    return TRUE;
}

void SkipBytes(j_decompress_ptr decoder, long count) {
    JpegSource& source = Source(decoder);
    if (count <= 0) {
        return;
    }
    const std::size_t buffered = std::min(std::size_t(count), source.manager.bytes_in_buffer);
    source.manager.next_input_byte += buffered;
    source.manager.bytes_in_buffer -= buffered;
    source.file->skip(count - long(buffered));
}

void StopSource(j_decompress_ptr) {}

} // namespace

JpegSource::JpegSource(QIODevice& input) : file(&input), buffer(kPieceSize) {
    manager.init_source = StartSource;
    manager.fill_input_buffer = FillBuffer;
    manager.skip_input_data = SkipBytes;
    manager.resync_to_restart = jpeg_resync_to_restart;
    manager.term_source = StopSource;
}
