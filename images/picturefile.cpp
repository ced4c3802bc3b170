#include "images/picturefile.h"

#include "images/bitmapreader.h"
#include "images/jpegreader.h"
#include "images/scaling.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

namespace {

enum class PictureKind { Unknown, Jpeg, Gif, Bmp };

PictureKind KindOf(QIODevice& file) {
    const QByteArray head = file.peek(6);
    if (head.startsWith("\xFF\xD8\xFF")) {
        return PictureKind::Jpeg;
    }
    if (head == "GIF87a" || head == "GIF89a") {
        return PictureKind::Gif;
    }
    return head.startsWith("BM") ? PictureKind::Bmp : PictureKind::Unknown;
}

PictureError UnknownKind() {
    return PictureError("no es una imagen JPEG, GIF ni BMP");
}

QSize ReadSize(QIODevice& file) {
    switch (KindOf(file)) {
    case PictureKind::Jpeg:
        return ReadJpegSize(file);
    case PictureKind::Gif:
        return ReadGifSize(file);
    case PictureKind::Bmp:
        return ReadBmpSize(file);
    default:
        throw UnknownKind();
    }
}

DecodedPicture Shrunk(const QImage& image, QSize neededSize) {
    return {neededSize.isEmpty() ? image : ShrinkPicture(image, neededSize), image.size()};
}

DecodedPicture Decode(QIODevice& file, QSize neededSize) {
    switch (KindOf(file)) {
    case PictureKind::Jpeg:
        return ReadJpeg(file, neededSize);
    case PictureKind::Gif:
        return Shrunk(ReadGif(file), neededSize);
    case PictureKind::Bmp:
        return Shrunk(ReadBmp(file), neededSize);
    default:
        throw UnknownKind();
    }
}

PictureError Named(const QString& name, const QString& reason) {
    return PictureError(QString("No se puede leer la imagen %1: %2.").arg(name, reason));
}

// What `read` gives for the file at `path`; its failures name the file.
template <class Read> auto ReadNamed(const QString& path, const Read& read) {
    const QFileInfo info(path);
    if (!info.isFile()) {
        throw Named(info.fileName(), "no se encuentra el fichero");
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw Named(info.fileName(), "no se puede abrir el fichero");
    }
    try {
        return read(file);
    } catch (const PictureError& error) {
        throw Named(info.fileName(), error.Text());
    }
}

} // namespace

QSize ReadPictureSize(const QString& path) {
    return ReadNamed(path, ReadSize);
}

DecodedPicture ReadPicture(const QString& path, QSize neededSize) {
    return ReadNamed(path, [&](QIODevice& file) { return Decode(file, neededSize); });
}

DecodedPicture ReadPictureBytes(const QByteArray& bytes, const QString& name, QSize neededSize) {
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    try {
        return Decode(buffer, neededSize);
    } catch (const PictureError& error) {
        throw Named(name, error.Text());
    }
}
