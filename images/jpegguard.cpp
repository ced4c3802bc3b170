#include "images/jpegguard.h"

#include <jerror.h>

namespace {

// Pictures with small faults (stray bytes between segments) are shown like sound ones, but a
// picture with a part missing is a failure, or it would be published half grey.
void JudgeWarning(j_common_ptr codec, int level) {
    if (level >= 0) {
        return; // a trace
    }
    ++codec->err->num_warnings;
    if (codec->err->msg_code == JWRN_HIT_MARKER) {
        FailJpeg(codec);
    }
}

void PrintNothing(j_common_ptr) {}

} // namespace

JpegGuard::JpegGuard() {
    jpeg_std_error(&manager);
    manager.error_exit = FailJpeg;
    manager.emit_message = JudgeWarning;
    manager.output_message = PrintNothing;
}

void FailJpeg(j_common_ptr codec) {
    std::longjmp(reinterpret_cast<JpegGuard*>(codec->err)->failed, 1);
}
