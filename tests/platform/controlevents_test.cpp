#include "platform/controlevents.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

// Two watched boxes and a button in a window, and what was told of them.
struct ControlEventsTest : testing::Test {
    QWidget window;
    QVBoxLayout* layout = new QVBoxLayout(&window);
    QLineEdit* first = Add<QLineEdit>("first");
    QLineEdit* second = Add<QLineEdit>("second");
    QPushButton* button = Add<QPushButton>("button");
    ControlEvents events;
    QStringList log;
    bool refuse = false;
    int clicks = 0;

    ControlEventsTest() {
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        first->setFocus();
        QObject::connect(&events, &ControlEvents::gotFocus,
                         [this](QWidget* control) { log << "got " + control->objectName(); });
        QObject::connect(&events, &ControlEvents::lostFocus, [this](QWidget* from, QWidget* next) {
            log << "lost " + from->objectName() + " to " + (next ? next->objectName() : "none");
        });
        QObject::connect(&events, &ControlEvents::validate, [this](QWidget* control, bool& cancel) {
            log << "validate " + control->objectName();
            cancel = refuse;
        });
        QObject::connect(button, &QPushButton::clicked, [this] { ++clicks; });
        events.Watch(first);
        events.Watch(second);
    }

    template <class Control> Control* Add(const char* name) {
        auto* control = new Control(&window);
        control->setObjectName(name);
        layout->addWidget(control);
        return control;
    }
};

TEST_F(ControlEventsTest, FocusThatMovesIsAskedForThenLostThenGot) {
    QTest::keyClick(first, Qt::Key_Tab);
    EXPECT_EQ(log, QStringList({"validate first", "lost first to second", "got second"}));
    log.clear();
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(log, QStringList({"validate second", "lost second to button"}));
    EXPECT_EQ(clicks, 1);
}

TEST_F(ControlEventsTest, RefusedFocusStaysWhateverMovesIt) {
    refuse = true;
    const std::function<void()> moves[] = {
        [this] { QTest::keyClick(first, Qt::Key_Tab); },
        [this] { QTest::mouseClick(button, Qt::LeftButton); },
        [this] { QTest::mouseClick(second, Qt::LeftButton); },
        [this] { second->setFocus(); },
    };
    for (const auto& move : moves) {
        log.clear();
        move();
        EXPECT_TRUE(first->hasFocus());
        EXPECT_EQ(log, QStringList({"validate first"}));
    }
    EXPECT_EQ(clicks, 0) << "the press that would have moved the focus is lost";

    QTest::keyClicks(first, "x");
    EXPECT_EQ(first->text(), "x");
    QCoreApplication::processEvents();
    refuse = false;
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ControlEventsTest, MessageBoxWhileRefusingLeavesNoTrace) {
    QObject::connect(&events, &ControlEvents::validate, [this](QWidget*, bool& cancel) {
        QMessageBox box(&window);
        QTimer::singleShot(0, &box, &QMessageBox::accept);
        box.exec();
        cancel = true;
    });
    QTest::keyClick(first, Qt::Key_Tab);
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(first->hasFocus());
    EXPECT_EQ(log, QStringList({"validate first"}));
}

TEST_F(ControlEventsTest, OtherWindowThatBorrowsTheFocusIsNoLoss) {
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(first->hasFocus());
    EXPECT_EQ(log, QStringList());
}

TEST_F(ControlEventsTest, DisabledControlIsNotAsked) {
    refuse = true;
    first->setEnabled(false);
    EXPECT_FALSE(log.contains("validate first"));
    EXPECT_TRUE(log.contains("lost first to second")) << log.join(", ").toStdString();
}

TEST_F(ControlEventsTest, HandledKeyDoesNotReachItsControl) {
    QObject::connect(&events, &ControlEvents::keyDown, [](QWidget*, QKeyEvent* key, bool& handled) {
        handled = key->key() == Qt::Key_A;
    });
    QTest::keyClicks(first, "abA");
    EXPECT_EQ(first->text(), "b");
}

} // namespace
