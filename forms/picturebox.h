// A label that shows its picture fitted into its own size: aspect kept, enlarged like reduced,
// centred. The picture is set, read and cleared as with any label.
#pragma once

#include <QLabel>

// Where a picture of size `picture` lies in a frame of size `frame` from which `margin` pixels are
// taken off in both directions; a negative margin lets it outgrow the frame. Empty if `picture` is.
QRect FitPicture(QSize picture, QSize frame, int margin);

class PictureBox : public QLabel {
    Q_OBJECT
    Q_PROPERTY(int margin READ FitMargin WRITE SetFitMargin)

public:
    explicit PictureBox(QWidget* parent = nullptr);

    // Pixels, as in FitPicture; 0 at start.
    int FitMargin() const { return fitMargin; }
    void SetFitMargin(int margin);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void Clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    int fitMargin = 0;
};
