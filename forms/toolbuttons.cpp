#include "forms/toolbuttons.h"

#include <QAction>
#include <QToolBar>
#include <QToolButton>

void MakeButtonsReachable(QToolBar* bar, QWidget* before, QWidget* after) {
    QWidget* previous = before;
    for (QAction* action : bar->actions()) {
        auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action));
        if (button == nullptr) {
            continue;
        }
        button->setFocusPolicy(Qt::TabFocus);
        button->setAccessibleName(action->text());
        if (previous != nullptr) {
            QWidget::setTabOrder(previous, button);
        }
        previous = button;
    }
    if (previous != nullptr) {
        QWidget::setTabOrder(previous, after);
    }
}
