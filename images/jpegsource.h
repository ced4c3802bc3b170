// A file as the input of the JPEG library, read in pieces.
#pragma once

#include <QIODevice>
#include <cstdio>
#include <jpeglib.h>
#include <vector>

// For the `src` member of a decompressor; `manager` must stay its first member. Behind the file's
// last byte it supplies an end marker: a picture that only lacks that is complete.
struct JpegSource {
    explicit JpegSource(QIODevice& input);
    jpeg_source_mgr manager{};
    QIODevice* file;
    std::vector<JOCTET> buffer;
    bool ended = false; // more was asked for than the file has
};
