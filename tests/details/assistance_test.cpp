// The panel that shows a text of another language beside an empty box, and the language buttons.
#include "core/settings.h"
#include "details/languages.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "tests/support/program.h"

#include <QTest>
#include <gtest/gtest.h>

namespace {

// The second product has no English texts.
void ShowInEnglish() {
    ClickRow(1);
    Click(frmMain->optLang[1]);
}

} // namespace

TEST(Assistance, AnEmptyTextShowsTheOtherLanguagesUntilItsBoxIsLeft) {
    const TestProgram program;
    frmMain->txtMLFields[0]->setFocus();
    EXPECT_FALSE(frmMain->fraLangAssist->isVisible()); // it has a text
    ShowInEnglish();
    frmMain->txtMLFields[1]->setFocus();
    ASSERT_TRUE(frmMain->fraLangAssist->isVisible());
    EXPECT_EQ(frmMain->lblToTranslate->text(), "De roble");
    EXPECT_EQ(Tag(frmMain->fraLangAssist), "1");
    frmMain->txtMLFields[0]->setFocus();
    EXPECT_EQ(frmMain->lblToTranslate->text(), "Mesa");
    EXPECT_TRUE(frmMain->fraLangAssist->isVisible());
    frmMain->txtPriceAmount->setFocus();
    EXPECT_FALSE(frmMain->fraLangAssist->isVisible());
    ChangeStore("UPDATE MultiLangFields SET FieldValue='  ' WHERE ItemId='10002' AND FieldDefId=0");
    frmMain->txtMLFields[0]->setFocus();
    EXPECT_FALSE(frmMain->fraLangAssist->isVisible()); // blanks are no text
}

TEST(Assistance, ArrowsScrollTheTextByAQuarterOfItsBox) {
    const TestProgram program;
    ShowInEnglish();
    frmMain->txtMLFields[1]->setFocus();
    const int step = frmMain->txtMLFields[1]->height() / 4;
    const int top = frmMain->lblToTranslate->y();
    Click(frmMain->lblLangScroll[1]);
    Click(frmMain->lblLangScroll[1]);
    EXPECT_EQ(frmMain->lblToTranslate->y(), top - 2 * step);
    Click(frmMain->lblLangScroll[0]);
    EXPECT_EQ(frmMain->lblToTranslate->y(), top - step);
    for (int i = 0; i < 20; ++i) {
        Click(frmMain->lblLangScroll[0]);
    }
    EXPECT_LT(frmMain->lblToTranslate->y(), 30);
}

TEST(Assistance, ADoubleClickTakesTheTextOverAndIsSavedLikeTyping) {
    for (const bool afterASaveThatStayed : {false, true}) {
        const TestProgram program;
        ShowInEnglish();
        if (afterASaveThatStayed) {
            Type(frmMain->txtFields[0], "ocre");
            frmMain->mnuTabs[1]->trigger();
            frmMain->mnuTabs[0]->trigger();
        }
        for (const int box : {0, 1}) {
            frmMain->txtPriceAmount->setFocus();
            frmMain->txtMLFields[box]->setFocus();
            ASSERT_TRUE(frmMain->fraLangAssist->isVisible());
            QTest::mouseDClick(frmMain->lblToTranslate, Qt::LeftButton);
            EXPECT_EQ(ControlText(frmMain->txtMLFields[box]), box == 0 ? "Mesa" : "De roble");
            EXPECT_FALSE(frmMain->txtMLFields[box]->hasFocus()) << box; // it has moved on
        }
        ClickRow(0);
        EXPECT_EQ(TextsOf(10002, "EN"), "Mesa|De roble|") << afterASaveThatStayed;
    }
}

TEST(LangButtons, ShowTheUsersLanguagesAndVanishWithOneAlone) {
    const TestProgram program;
    struct {
        const char* langs;
        const char* current;
        const char* tags;
        int checked;
        bool shown;
    } const cases[] = {{"ES|EN", "EN", "ES EN", 1, true},
                       {"ES|XX|EN", "ES", "ES XX EN", 0, true},
                       {"EN|ES", "FR", "EN ES", -1, true},
                       {"ES", "ES", "ES", 0, false}};
    for (const auto& c : cases) {
        SetUserLangs(c.langs, "ES");
        SetUICurrentLang(c.current);
        ArrangeLangButtons(frmMain->fraLang, frmMain->optLang);
        QStringList tags;
        int checked = -1;
        for (int i = 0; i < int(frmMain->optLang.size()); ++i) {
            const QToolButton* button = frmMain->optLang[i];
            if (!button->isHidden()) {
                tags += Tag(button);
            }
            checked = button->isChecked() ? i : checked;
            EXPECT_EQ(button->toolTip(), Tag(button) == u"ES"   ? "Español"
                                         : Tag(button) == u"EN" ? "Inglés"
                                                                : "");
        }
        EXPECT_EQ(tags.join(' '), c.tags);
        EXPECT_EQ(checked, c.checked) << c.langs << " " << c.current;
        EXPECT_EQ(frmMain->fraLang->isVisible(), c.shown) << c.langs;
    }
}
