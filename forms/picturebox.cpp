#include "forms/picturebox.h"

#include <QMouseEvent>
#include <QPainter>

QRect FitPicture(QSize picture, QSize frame, int margin) {
    const QSize room(frame.width() - margin, frame.height() - margin);
    if (picture.isEmpty() || room.isEmpty()) {
        return {};
    }
    const QSize fitted = picture.scaled(room, Qt::KeepAspectRatio);
    return {QPoint((frame.width() - fitted.width()) / 2, (frame.height() - fitted.height()) / 2),
            fitted};
}

PictureBox::PictureBox(QWidget* parent) : QLabel(parent) {}

void PictureBox::SetFitMargin(int margin) {
    fitMargin = margin;
    update();
}

QSize PictureBox::sizeHint() const {
    return minimumSize();
}

QSize PictureBox::minimumSizeHint() const {
    return minimumSize();
}

void PictureBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawFrame(&painter);
    const QPixmap picture = pixmap();
    const QRect place = FitPicture(picture.size(), size(), fitMargin);
    if (picture.isNull() || place.isEmpty()) {
        return;
    }
    // Averaged over the pixels that fall together: the painter's own scaling leaves jagged edges.
    QPixmap scaled = picture.scaled(place.size() * devicePixelRatioF(), Qt::IgnoreAspectRatio,
                                    Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(devicePixelRatioF());
    painter.drawPixmap(place.topLeft(), scaled);
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        emit Clicked();
    }
    QLabel::mousePressEvent(event);
}
