#include "tests/support/boxes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>

BoxAnswers::BoxAnswers(QMessageBox::StandardButton newAnswer) : answer(newAnswer) {
    qApp->installEventFilter(this);
}

QString BoxAnswers::Texts() const {
    QStringList texts;
    for (const SeenBox& box : seen) {
        texts += box.text;
    }
    return texts.join("|");
}

bool BoxAnswers::eventFilter(QObject* object, QEvent* event) {
    auto* box = qobject_cast<QMessageBox*>(object);
    if (box != nullptr && event->type() == QEvent::Show) {
        seen.push_back({box->windowTitle(), box->text(), box->icon()});
        QMetaObject::invokeMethod(
            box, [this, box] { Answer(box); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(object, event);
}

void BoxAnswers::Answer(QMessageBox* box) {
    QAbstractButton* button = box->button(answer);
    if (button == nullptr) {
        button = box->defaultButton();
    }
    (button != nullptr ? button : box->buttons().first())->click();
}

void ChoosePath(QFileDialog* dialog, const QString& path) {
    if (path.isEmpty()) {
        dialog->reject();
        return;
    }
    dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
    static_cast<QDialog*>(dialog)->accept();
}

PathChoice::PathChoice(const QString& newPath) : path(newPath) {
    qApp->installEventFilter(this);
}

bool PathChoice::eventFilter(QObject* object, QEvent* event) {
    auto* dialog = qobject_cast<QFileDialog*>(object);
    if (dialog != nullptr && event->type() == QEvent::Show) {
        title = dialog->windowTitle();
        QMetaObject::invokeMethod(
            dialog, [dialog, chosen = path] { ChoosePath(dialog, chosen); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(object, event);
}
