#include "images/picture.h"

PictureError DamagedPicture() {
    return PictureError("el fichero está dañado o incompleto");
}

PictureError TooLargePicture(QSize size) {
    return PictureError(
        QString("es demasiado grande (%1 x %2 píxeles)").arg(size.width()).arg(size.height()));
}

QImage AllocatePicture(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull()) {
        throw TooLargePicture(size);
    }
    return image;
}
