// The mouse side of the picture album: the transparent area over each thumbnail, which is clicked,
// reached by keyboard and dragged onto another one, and the zone where picture files are dropped.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QStringList>

class ClickArea : public QAbstractButton {
    Q_OBJECT

public:
    explicit ClickArea(QWidget* parent = nullptr);

signals:
    // Another area of the same form was dragged here and let go.
    void Dropped(ClickArea* source);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QPoint pressedAt;
};

class DropZone : public QLabel {
    Q_OBJECT

public:
    explicit DropZone(QWidget* parent = nullptr);

signals:
    // While local files hang over the zone: a receiver sets `accept` if they may be dropped.
    void DraggedOver(const QStringList& files, bool& accept);

    // Files that were let go here, in the order in which they came.
    void FilesDropped(const QStringList& files);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
};
