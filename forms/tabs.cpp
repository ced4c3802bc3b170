#include "forms/tabs.h"

#include "forms/look.h"

#include <QFrame>

TabButton::TabButton(QWidget* parent) : QToolButton(parent) {
    setCheckable(true);
}

void ShowTabPage(const std::vector<QFrame*>& tabs, const std::vector<TabButton*>& captions,
                 const std::vector<QWidget*>& pages, int index) {
    // The new page first: with no page visible for a moment the window would shrink and grow again.
    if (index >= 0 && index < static_cast<int>(pages.size())) {
        pages[index]->show();
    }
    for (int tab = 0; tab < static_cast<int>(pages.size()); ++tab) {
        pages[tab]->setVisible(tab == index);
        captions[tab]->setChecked(tab == index);
        SetLookFlag(tabs[tab], "selected", tab == index);
    }
}
