#include "forms/colorswatch.h"

#include <QPainter>

ColorSwatch::ColorSwatch(QWidget* parent) : QFrame(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ColorSwatch::SetColor(const QColor& newColor) {
    color = newColor;
    update();
}

QSize ColorSwatch::sizeHint() const {
    const int side = fontMetrics().height() + 6;
    return {side, side};
}

void ColorSwatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor outline = palette().color(QPalette::WindowText);
    outline.setAlphaF(0.35F);
    painter.setPen(outline);
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
}
