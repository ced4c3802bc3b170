// A small frame filled with one colour, for showing the colours of a design.
#pragma once

#include <QColor>
#include <QFrame>

class ColorSwatch : public QFrame {
    Q_OBJECT

public:
    explicit ColorSwatch(QWidget* parent = nullptr);

    QColor Color() const { return color; }
    void SetColor(const QColor& newColor);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor color = Qt::transparent;
};
