#include "platform/controls.h"

#include <QAction>
#include <QEvent>
#include <QPointer>
#include <QPushButton>
#include <gtest/gtest.h>

namespace {

// Takes another control away as soon as its own is disabled, as a relayout or a closing popup may.
class Remover : public QObject {
public:
    explicit Remover(QObject* other) : victim(other) {}

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::EnabledChange) {
            delete victim.data();
        }
        return false;
    }

private:
    QPointer<QObject> victim;
};

template <class Control> Control* Named(QWidget* form, const char* name) {
    auto* control = new Control(form);
    control->setObjectName(name);
    return control;
}

} // namespace

TEST(EnableWhileBusy, TouchesWhatDisturbsAndOutlivesControlsThatGoMeanwhile) {
    QWidget form;
    auto* first = Named<QPushButton>(&form, "cmdHosting");
    Remover remover(Named<QPushButton>(&form, "cmdTemplates"));
    first->installEventFilter(&remover);
    auto* excluded = Named<QPushButton>(&form, "cmdUpdateWeb_1");
    auto* entry = Named<QAction>(&form, "mnuExit");
    auto* other = Named<QPushButton>(&form, "lblTab_0");

    EnableWhileBusy("cmdUpdateWeb", false, &form);
    EXPECT_FALSE(first->isEnabled());
    EXPECT_FALSE(entry->isEnabled());
    EXPECT_TRUE(excluded->isEnabled());
    EXPECT_TRUE(other->isEnabled());
    EXPECT_EQ(form.findChild<QPushButton*>("cmdTemplates"), nullptr);
}
