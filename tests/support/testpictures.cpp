#include "testpictures.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <algorithm>
#include <cstdlib>

QImage FourFields(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    const int x = size.width() / 2;
    const int y = size.height() / 2;
    painter.fillRect(0, 0, x, y, QColor(kFieldA));
    painter.fillRect(x, 0, size.width() - x, y, QColor(kFieldB));
    painter.fillRect(0, y, x, size.height() - y, QColor(kFieldC));
    painter.fillRect(x, y, size.width() - x, size.height() - y, QColor(kFieldD));
    return image;
}

QByteArray CornerFields(const QImage& image, int tolerance) {
    const int right = image.width() - 1;
    const int bottom = image.height() - 1;
    const QRgb corners[] = {image.pixel(0, 0), image.pixel(right, 0), image.pixel(0, bottom),
                            image.pixel(right, bottom)};
    constexpr QRgb kFields[] = {kFieldA, kFieldB, kFieldC, kFieldD};
    QByteArray letters;
    for (const QRgb corner : corners) {
        char letter = '?';
        for (int i = 0; i < 4; ++i) {
            if (ColorDistance(corner, kFields[i]) <= tolerance) {
                letter = char('A' + i);
            }
        }
        letters += letter;
    }
    return letters;
}

int ColorDistance(QRgb a, QRgb b) {
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
}

QByteArray MakeJpeg(const QImage& image, bool progressive) {
    QBuffer buffer;
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(95);
    writer.setProgressiveScanWrite(progressive);
    writer.write(image);
    return buffer.data();
}
