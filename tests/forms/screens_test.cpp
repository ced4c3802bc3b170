// Walks every screen as a user without a mouse, without eyes or with a small monitor would.
#include "forms/aboutform.h"
#include "forms/apploginform.h"
#include "forms/calcform.h"
#include "forms/configform.h"
#include "forms/corpinfoform.h"
#include "forms/ftploginform.h"
#include "forms/internalform.h"
#include "forms/look.h"
#include "forms/mainform.h"
#include "forms/picturesform.h"
#include "forms/searchform.h"
#include "forms/webpreviewform.h"

#include <QAccessible>
#include <QTest>
#include <gtest/gtest.h>

namespace {

struct Screen {
    const char* name;
    std::unique_ptr<QWidget> (*make)();
    void (*showTab)(QWidget* screen, int tab);
    int pages;
};

template <class Form> Screen Plain(const char* name) {
    return {name, [] { return std::unique_ptr<QWidget>(new Form(nullptr)); }, [](QWidget*, int) {},
            1};
}

template <class Form> Screen WithTabs(const char* name, int pages) {
    Screen screen = Plain<Form>(name);
    screen.showTab = [](QWidget* form, int tab) { static_cast<Form*>(form)->ShowTab(tab); };
    screen.pages = pages;
    return screen;
}

struct MainScreen : MainForm {
    explicit MainScreen(QWidget* /*parent*/) {}
};

const Screen kScreens[] = {
    WithTabs<MainScreen>("main", 2),      WithTabs<ConfigForm>("configuration", 4),
    WithTabs<CorpInfoForm>("company", 4), Plain<PicturesForm>("pictures"),
    Plain<InternalForm>("internal"),      Plain<AppLoginForm>("password"),
    Plain<SearchForm>("search"),          Plain<CalcForm>("calculator"),
    Plain<WebPreviewForm>("preview"),     Plain<AboutForm>("about"),
    Plain<FTPLoginForm>("ftp"),
};

// All that a screen can show at once, with the names that fields and languages give it.
void ShowAll(QWidget* screen) {
    const QRegularExpression kHidden("^(fraLang|fraReadOnly|fraLangAssist|cmdInternalData|"
                                     "(optLang|chkLang|optDefaultLang)_.*)$");
    for (QWidget* control : screen->findChildren<QWidget*>(kHidden)) {
        control->show();
        control->setEnabled(true);
        control->setToolTip("Español");
    }
    for (auto* label : screen->findChildren<QLabel*>(QRegularExpression("^lblFields_"))) {
        label->setText("Campo:");
    }
    if (auto* main = qobject_cast<MainForm*>(screen)) {
        for (int slot = 0; slot < 24; ++slot) {
            main->shpFields[slot]->setVisible(slot % 3 == 0);
            main->txtFields[slot]->setVisible(slot % 3 == 0);
            main->chkFields[slot]->setVisible(slot % 3 == 1);
            main->cboFields[slot]->setVisible(slot % 3 == 2);
            main->txtFields[slot]->setAccessibleName("Campo");
            main->chkFields[slot]->setAccessibleName("Campo");
            main->cboFields[slot]->setAccessibleName("Campo");
        }
        main->Button("LoanCalc")->setVisible(true);
    }
    if (auto* config = qobject_cast<ConfigForm*>(screen)) {
        config->optDefaultLang[0]->setChecked(true);
    }
}

// Runs `check` for every page of every screen, in a window of 800 by 600 less the frames and bars
// of a desktop.
void ForEachPage(const std::function<void(QWidget*)>& check) {
    for (const Screen& screen : kScreens) {
        const std::unique_ptr<QWidget> form = screen.make();
        ShowAll(form.get());
        form->resize(790, 560);
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        for (int page = 0; page < screen.pages; ++page) {
            SCOPED_TRACE(std::string(screen.name) + " page " + std::to_string(page));
            screen.showTab(form.get(), page);
            QCoreApplication::processEvents();
            check(form.get());
        }
    }
}

QList<QWidget*> VisibleControls(QWidget* screen) {
    QList<QWidget*> controls;
    for (QWidget* control : screen->findChildren<QWidget*>()) {
        const auto isA = [control](const char* kind) { return control->inherits(kind); };
        constexpr const char* kKinds[] = {"QAbstractButton",   "QLineEdit", "QPlainTextEdit",
                                          "QAbstractItemView", "QComboBox", "QProgressBar"};
        if (control->isVisible() && std::any_of(std::begin(kKinds), std::end(kKinds), isA) &&
            !control->objectName().startsWith("qt_") && !isA("QHeaderView")) {
            controls << control;
        }
    }
    return controls;
}

bool TakesTab(const QWidget* control) {
    return (control->focusPolicy() & Qt::TabFocus) != 0;
}

// Options that exclude each other are one stop of the Tab key; arrows walk among them.
bool IsReached(const QWidget* control, const QSet<QWidget*>& visited) {
    const auto* option = qobject_cast<const QAbstractButton*>(control);
    return std::any_of(visited.begin(), visited.end(), [&](const QWidget* seen) {
        const auto* other = qobject_cast<const QAbstractButton*>(seen);
        const bool oneGroup = option != nullptr && other != nullptr &&
                              ((option->group() != nullptr && option->group() == other->group()) ||
                               (option->autoExclusive() && other->autoExclusive() &&
                                option->parent() == other->parent()));
        return seen == control || oneGroup;
    });
}

// Accelerators of one level must differ; nested menus are levels of their own.
void CheckAccelerators(const QList<QAction*>& level) {
    QStringList used;
    for (const QAction* action : level) {
        if (action->menu() != nullptr) {
            CheckAccelerators(action->menu()->actions());
        }
        const QString key = QKeySequence::mnemonic(action->text()).toString();
        if (!key.isEmpty() && action->isVisible()) {
            EXPECT_FALSE(used.contains(key)) << action->text().toStdString();
            used << key;
        }
    }
}

TEST(ScreensTest, EveryVisibleControlHasAnAccessibleName) {
    ForEachPage([](QWidget* screen) {
        for (QWidget* control : VisibleControls(screen)) {
            const QString name =
                QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name);
            EXPECT_FALSE(name.trimmed().isEmpty()) << control->objectName().toStdString();
        }
    });
}

TEST(ScreensTest, NoTwoCommandsOfALevelShareAnAccelerator) {
    MainForm main;
    for (const int hidden : {0, 1}) {
        main.mnuActions[hidden]->menuAction()->setVisible(false);
        main.mnuActions[1 - hidden]->menuAction()->setVisible(true);
        CheckAccelerators(main.menuBar()->actions());
    }
    ForEachPage([](QWidget* screen) {
        QStringList used;
        for (const QAbstractButton* button : screen->findChildren<QAbstractButton*>()) {
            const QString key = QKeySequence::mnemonic(button->text()).toString();
            EXPECT_TRUE(key.isEmpty() || !used.contains(key)) << button->text().toStdString();
            used << key;
        }
    });
}

TEST(ScreensTest, TabVisitsEveryControlAndComesBack) {
    ForEachPage([](QWidget* screen) {
        QSet<QWidget*> expected;
        for (QWidget* control : VisibleControls(screen)) {
            if (control->isEnabled() && TakesTab(control)) {
                expected << control;
            }
        }
        ASSERT_FALSE(expected.isEmpty());
        (*expected.begin())->setFocus();
        QSet<QWidget*> visited;
        for (int step = 0; step < 200 && !visited.contains(QApplication::focusWidget()); ++step) {
            visited << QApplication::focusWidget();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        for (QWidget* control : expected) {
            EXPECT_TRUE(IsReached(control, visited)) << control->objectName().toStdString();
        }
    });
}

TEST(ScreensTest, EverythingThatCanBeClickedCanBeReachedByKeyboard) {
    // What has a twin that the keyboard reaches, or keys of its own in the box that it serves.
    const QRegularExpression mouseOnly("^(imgTab|lblColorSet|lblLangScroll)_");
    ForEachPage([&](QWidget* screen) {
        for (const QWidget* control : VisibleControls(screen)) {
            const auto* option = qobject_cast<const QAbstractButton*>(control);
            const bool inGroup = option != nullptr && (option->autoExclusive() || option->group());
            if (qobject_cast<const QProgressBar*>(control) == nullptr && !inGroup &&
                !mouseOnly.match(control->objectName()).hasMatch()) {
                EXPECT_TRUE(TakesTab(control)) << control->objectName().toStdString();
            }
        }
    });
}

TEST(ScreensTest, EveryPageFitsASmallScreen) {
    ForEachPage([](QWidget* screen) {
        EXPECT_LE(screen->width(), 790);
        EXPECT_LE(screen->height(), 560);
    });
}

// A group is gathered up to the first index that is missing: what lies behind would be dead.
TEST(ScreensTest, IndexesOfGroupsHaveNoGap) {
    const QRegularExpression indexed("^(.+)_([1-9][0-9]*)$");
    ForEachPage([&](QWidget* screen) {
        for (const QObject* control : screen->findChildren<QObject*>(indexed)) {
            const auto name = indexed.match(control->objectName());
            const QString before =
                name.captured(1) + '_' + QString::number(name.captured(2).toInt() - 1);
            EXPECT_NE(screen->findChild<QObject*>(before), nullptr) << before.toStdString();
        }
    });
}

TEST(ScreensTest, EveryIconThatAControlNamesExists) {
    ForEachPage([](QWidget* screen) {
        for (const QObject* control : screen->findChildren<QObject*>()) {
            const QString ink = control->property("ink").toString();
            EXPECT_TRUE(ink.isEmpty() || !InkIcon(ink).isNull()) << ink.toStdString();
        }
    });
    for (const char* code : {"ES", "EN", "DE", "FR", "IT", "PT", "CA", "EU", "GL"}) {
        EXPECT_FALSE(FlagIcon(code).isNull()) << code;
    }
    EXPECT_TRUE(FlagIcon("XX").isNull());
}

} // namespace
