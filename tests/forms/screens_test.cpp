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

// A screen as it stands when all that it can show at once is shown.
struct Screen {
    const char* name;
    std::unique_ptr<QWidget> (*make)();
    int pages = 1;
};

template <class Form> std::unique_ptr<QWidget> Make() {
    return std::make_unique<Form>(nullptr);
}

void NameLanguages(const std::vector<QToolButton*>& buttons) {
    for (QToolButton* button : buttons) {
        button->show();
        button->setToolTip("Español");
    }
    buttons.front()->parentWidget()->show();
}

std::unique_ptr<QWidget> MakeMain() {
    auto form = std::make_unique<MainForm>();
    for (int slot = 0; slot < 24; ++slot) {
        form->shpFields[slot]->setVisible(slot % 3 == 0);
        form->txtFields[slot]->setVisible(slot % 3 == 0);
        form->chkFields[slot]->setVisible(slot % 3 == 1);
        form->cboFields[slot]->setVisible(slot % 3 == 2);
        for (QWidget* control : {static_cast<QWidget*>(form->txtFields[slot]),
                                 static_cast<QWidget*>(form->chkFields[slot]),
                                 static_cast<QWidget*>(form->cboFields[slot])}) {
            control->setAccessibleName("Campo");
        }
    }
    NameLanguages(form->optLang);
    form->cmdInternalData->show();
    form->Button("LoanCalc")->setVisible(true);
    form->fraReadOnly->show();
    form->fraLangAssist->show();
    return form;
}

std::unique_ptr<QWidget> MakeConfig() {
    auto form = std::make_unique<ConfigForm>(nullptr);
    for (size_t language = 0; language < form->chkLang.size(); ++language) {
        form->chkLang[language]->show();
        form->chkLang[language]->setToolTip("Español");
        form->optDefaultLang[language]->show();
        form->optDefaultLang[language]->setEnabled(true);
    }
    form->optDefaultLang[0]->setChecked(true);
    return form;
}

std::unique_ptr<QWidget> MakeCorpInfo() {
    auto form = std::make_unique<CorpInfoForm>(nullptr);
    NameLanguages(form->optLang);
    return form;
}

std::unique_ptr<QWidget> MakePictures() {
    auto form = std::make_unique<PicturesForm>(nullptr);
    NameLanguages(form->optLang);
    form->fraReadOnly->show();
    return form;
}

std::unique_ptr<QWidget> MakeInternal() {
    auto form = std::make_unique<InternalForm>(nullptr);
    for (QLabel* label : form->lblFields) {
        label->setText("Campo:");
    }
    return form;
}

const Screen kScreens[] = {
    {"main", MakeMain, 2},
    {"configuration", MakeConfig, 4},
    {"company", MakeCorpInfo, 4},
    {"pictures", MakePictures},
    {"internal", MakeInternal},
    {"password", Make<AppLoginForm>},
    {"search", Make<SearchForm>},
    {"calculator", Make<CalcForm>},
    {"preview", Make<WebPreviewForm>},
    {"about", Make<AboutForm>},
    {"ftp", Make<FTPLoginForm>},
};

void ShowPage(QWidget* screen, int page) {
    if (auto* main = qobject_cast<MainForm*>(screen)) {
        main->ShowTab(page);
    } else if (auto* config = qobject_cast<ConfigForm*>(screen)) {
        config->ShowTab(page);
    } else if (auto* company = qobject_cast<CorpInfoForm*>(screen)) {
        company->ShowTab(page);
    }
}

// Runs `check` for every page of every screen, in a window of 800 by 600 less the frames and bars
// of a desktop.
void ForEachPage(const std::function<void(QWidget*)>& check) {
    for (const Screen& screen : kScreens) {
        const std::unique_ptr<QWidget> form = screen.make();
        form->resize(790, 560);
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        for (int page = 0; page < screen.pages; ++page) {
            SCOPED_TRACE(std::string(screen.name) + " page " + std::to_string(page));
            ShowPage(form.get(), page);
            QCoreApplication::processEvents();
            check(form.get());
        }
    }
}

bool IsInteractive(const QWidget* control) {
    return (qobject_cast<const QAbstractButton*>(control) != nullptr ||
            qobject_cast<const QLineEdit*>(control) != nullptr ||
            qobject_cast<const QPlainTextEdit*>(control) != nullptr ||
            qobject_cast<const QComboBox*>(control) != nullptr ||
            qobject_cast<const QAbstractItemView*>(control) != nullptr ||
            qobject_cast<const QProgressBar*>(control) != nullptr) &&
           !control->objectName().startsWith("qt_") &&
           qobject_cast<const QHeaderView*>(control) == nullptr;
}

QList<QWidget*> VisibleControls(QWidget* screen) {
    QList<QWidget*> controls;
    for (QWidget* control : screen->findChildren<QWidget*>()) {
        if (control->isVisible() && IsInteractive(control)) {
            controls << control;
        }
    }
    return controls;
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
            if (control->isEnabled() && (control->focusPolicy() & Qt::TabFocus) != 0) {
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
                EXPECT_TRUE((control->focusPolicy() & Qt::TabFocus) != 0)
                    << control->objectName().toStdString();
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
