// The JPEG library reports failures by calling back, and what is called must not return. This turns
// them into PictureError.
#pragma once

#include "images/picture.h"

#include <csetjmp>
#include <cstdio>
#include <jpeglib.h>

// For the `err` member of a compressor or decompressor; `manager` must stay its first member.
struct JpegGuard {
    JpegGuard();
    jpeg_error_mgr manager;
    std::jmp_buf failed; // where the failing call returns to
};

// Takes the library's way out of a call, from a callback of the guarded object.
[[noreturn]] void FailJpeg(j_common_ptr codec);

// Runs `step`, which calls the library; DamagedPicture when the library gives up. `step` must not
// own anything when it calls: destructors between here and the failing call are jumped over.
template <class Step> void RunGuarded(JpegGuard& guard, const Step& step) {
    if (setjmp(guard.failed) != 0) {
        throw DamagedPicture();
    }
    step();
}
