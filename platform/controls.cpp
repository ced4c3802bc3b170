#include "platform/controls.h"

#include "platform/events.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QVariant>

namespace {

constexpr char kTagProperty[] = "Tag";

bool IsDisturbing(const QString& name) {
    static const QStringList kPrefixes{"cmd", "txt", "mnu", "opt", "chk"};
    static const QStringList kNames{"fraTabs", "fraProductList", "fraProductInfo", "cboIsNew"};
    return kPrefixes.contains(name.left(3)) || kNames.contains(name);
}

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

QString GroupName(const QObject* control) {
    return control->objectName().section(u'_', 0, 0);
}

void EnableWhileBusy(const QString& excluded, bool enabled, QWidget* form) {
    std::vector<QPointer<QObject>> controls; // some of the form's objects may go at a yield
    for (QObject* control : form->findChildren<QObject*>()) {
        const QString name = GroupName(control);
        if (name != excluded && IsDisturbing(name)) {
            controls.emplace_back(control);
        }
    }
    for (const QPointer<QObject>& control : controls) {
        if (auto* widget = qobject_cast<QWidget*>(control)) {
            widget->setEnabled(enabled);
        } else if (auto* action = qobject_cast<QAction*>(control)) {
            action->setEnabled(enabled);
        }
        DoEvents();
    }
}
