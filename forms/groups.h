// Groups of controls with one name and an index: the control with index 3 of the group txtFields
// bears the object name "txtFields_3". Forms gather them once, after they are set up.
#pragma once

#include <QAbstractButton>
#include <QButtonGroup>
#include <QString>
#include <vector>

// All controls of the group in index order, from 0 to the first index that `form` doesn't have.
template <class Control> std::vector<Control*> GatherGroup(const QObject* form, const char* name) {
    std::vector<Control*> group;
    while (auto* control = form->findChild<Control*>(QString::fromLatin1(name) + u'_' +
                                                     QString::number(group.size()))) {
        group.push_back(control);
    }
    return group;
}

// Makes options exclude each other wherever on the form they stand.
inline void MakeExclusive(QObject* form, const std::vector<QAbstractButton*>& options) {
    auto* group = new QButtonGroup(form);
    for (QAbstractButton* option : options) {
        group->addButton(option);
    }
}
