#include "forms/tabs.h"

#include "forms/look.h"

#include <QApplication>
#include <QFrame>

namespace {

// Where work goes on in a page: the control that had the focus last, or the first that can have it.
QWidget* WorkingControl(QWidget* page) {
    if (page->focusWidget() != nullptr) {
        return page->focusWidget();
    }
    for (QWidget* next = page->nextInFocusChain(); next != page; next = next->nextInFocusChain()) {
        if (page->isAncestorOf(next) && (next->focusPolicy() & Qt::TabFocus) != 0 &&
            next->isEnabledTo(page) && next->isVisibleTo(page)) {
            return next;
        }
    }
    return nullptr;
}

} // namespace

TabButton::TabButton(QWidget* parent) : QToolButton(parent) {
    setCheckable(true);
}

void ShowTabPage(const std::vector<QFrame*>& tabs, const std::vector<TabButton*>& captions,
                 const std::vector<QWidget*>& pages, int index) {
    bool followFocus = false;
    // Hidden before the other is shown: with two pages visible the window would grow for good.
    for (int tab = 0; tab < static_cast<int>(pages.size()); ++tab) {
        captions[tab]->setChecked(tab == index);
        SetLookFlag(tabs[tab], "selected", tab == index);
        if (tab != index) {
            followFocus = followFocus || pages[tab]->isAncestorOf(QApplication::focusWidget());
            pages[tab]->hide();
        }
    }
    if (index < 0 || index >= static_cast<int>(pages.size())) {
        return;
    }
    pages[index]->show();
    QWidget* control = WorkingControl(pages[index]);
    if (control != nullptr && (followFocus || !pages[index]->window()->isVisible())) {
        control->setFocus();
    }
}
