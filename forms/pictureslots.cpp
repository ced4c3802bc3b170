#include "forms/pictureslots.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QUrl>

namespace {

QStringList LocalFiles(const QMimeData* data) {
    QStringList files;
    for (const QUrl& url : data->urls()) {
        if (url.isLocalFile()) {
            files << url.toLocalFile();
        }
    }
    return files;
}

} // namespace

ClickArea::ClickArea(QWidget* parent) : QAbstractButton(parent) {
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ClickArea::paintEvent(QPaintEvent*) {
    if (!hasFocus()) {
        return;
    }
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DashLine));
    painter.drawRect(rect().adjusted(5, 5, -6, -6));
}

void ClickArea::mousePressEvent(QMouseEvent* event) {
    pressedAt = event->pos();
    QAbstractButton::mousePressEvent(event);
}

void ClickArea::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) == 0 ||
        (event->pos() - pressedAt).manhattanLength() < QApplication::startDragDistance()) {
        QAbstractButton::mouseMoveEvent(event);
        return;
    }
    setDown(false);
    auto* drag = new QDrag(this);
    drag->setMimeData(new QMimeData);
    drag->setPixmap(parentWidget()->grab());
    drag->exec(Qt::MoveAction);
}

void ClickArea::dragEnterEvent(QDragEnterEvent* event) {
    const auto* source = qobject_cast<ClickArea*>(event->source());
    event->setAccepted(source != nullptr && source != this && source->window() == window());
}

void ClickArea::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    emit Dropped(qobject_cast<ClickArea*>(event->source()));
}

DropZone::DropZone(QWidget* parent) : QLabel(parent) {
    setAcceptDrops(true);
}

void DropZone::dragEnterEvent(QDragEnterEvent* event) {
    bool accept = false;
    const QStringList files = LocalFiles(event->mimeData());
    if (!files.isEmpty()) {
        emit DraggedOver(files, accept);
    }
    if (accept) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void DropZone::dropEvent(QDropEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->accept();
    emit FilesDropped(LocalFiles(event->mimeData()));
}
