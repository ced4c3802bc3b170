// The panel that shows a text of another language beside an empty box, and the language buttons.
#include "core/settings.h"
#include "details/languages.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "tests/support/files.h"
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
    for (const QStringList& row : ReadTable(TABLES, "languages, current, checked, shown")) {
        SetUserLangs(QString(row[0]).replace(' ', '|'), "ES");
        SetUICurrentLang(row[1]);
        ArrangeLangButtons(frmMain->fraLang, frmMain->optLang);
        QStringList tags;
        QString checked;
        for (const QToolButton* button : frmMain->optLang) {
            const QString lang = Tag(button);
            tags += button->isHidden() ? QString() : lang;
            checked += button->isChecked() ? lang : QString();
            EXPECT_EQ(button->toolTip(), lang == u"ES" ? "Español" : lang == u"EN" ? "Inglés" : "");
        }
        EXPECT_EQ(tags.join(' ').trimmed(), row[0]);
        EXPECT_EQ(checked, row[2]) << row.join(' ').toStdString();
        EXPECT_EQ(frmMain->fraLang->isVisible(), row[3] == "yes") << row[0].toStdString();
    }
}
