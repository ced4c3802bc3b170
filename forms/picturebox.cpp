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
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(FitPicture(picture.size(), size(), fitMargin), picture);
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        emit Clicked();
    }
    QLabel::mousePressEvent(event);
}
