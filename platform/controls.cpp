#include "platform/controls.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVariant>

namespace {

constexpr char kTagProperty[] = "Tag";

} // namespace

QString ControlText(const QWidget* control) {
    if (const auto* line = qobject_cast<const QLineEdit*>(control)) {
        return line->text();
    }
    if (const auto* edit = qobject_cast<const QPlainTextEdit*>(control)) {
        return edit->toPlainText();
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(control)) {
        return combo->currentText();
    }
    return {};
}

void SetControlText(QWidget* control, const QString& text) {
    if (ControlText(control) == text) {
        return;
    }
    if (auto* line = qobject_cast<QLineEdit*>(control)) {
        line->setText(text);
    } else if (auto* edit = qobject_cast<QPlainTextEdit*>(control)) {
        edit->setPlainText(text);
    } else if (auto* combo = qobject_cast<QComboBox*>(control)) {
        combo->setCurrentText(text);
    }
}

QString Tag(const QObject* control) {
    return control->property(kTagProperty).toString();
}

void SetTag(QObject* control, const QString& tag) {
    control->setProperty(kTagProperty, tag);
}
