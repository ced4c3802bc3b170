#include "forms/apploginform.h"
#include "forms/configform.h"
#include "forms/fieldgrid.h"
#include "forms/mainform.h"
#include "forms/picturebox.h"
#include "forms/pictureslots.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

TEST(FitPictureTest, AspectIsKeptAndTheFrameIsFilled) {
    const struct {
        const char* what;
        QSize picture;
        QSize frame;
        int margin;
        QRect expected;
    } cases[] = {
        {"square in a wide frame fills the height", {50, 50}, {200, 100}, 0, {50, 0, 100, 100}},
        {"wide fills the width", {400, 100}, {200, 100}, 0, {0, 25, 200, 50}},
        {"small is enlarged", {2, 1}, {200, 100}, 0, {0, 0, 200, 100}},
        {"margin is taken off", {100, 100}, {120, 120}, 20, {10, 10, 100, 100}},
        {"negative margin outgrows", {100, 100}, {100, 100}, -10, {-5, -5, 110, 110}},
        {"no picture", {0, 0}, {100, 100}, 0, {}},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(FitPicture(test.picture, test.frame, test.margin), test.expected) << test.what;
    }
}

TEST(FormTest, RefusedUnloadKeepsTheFormOpen) {
    MainForm main;
    AppLoginForm dialog(&main);
    bool refuse = true;
    QObject::connect(&main, &MainForm::Unload, [&](bool& cancel) { cancel = refuse; });
    QObject::connect(&dialog, &Dialog::Unload, [&](bool& cancel) { cancel = refuse; });
    main.show();
    dialog.show();
    for (const bool refused : {true, false}) {
        refuse = refused;
        dialog.close();
        main.close();
        EXPECT_EQ(dialog.isVisible(), refused);
        EXPECT_EQ(main.isVisible(), refused);
    }
}

TEST(FormTest, EscapePressesCancelUnlessItIsDisabled) {
    ConfigForm dialog(nullptr);
    int presses = 0;
    QObject::connect(dialog.cmdCancel, &QPushButton::clicked, [&] { ++presses; });
    dialog.show();
    dialog.cmdCancel->setEnabled(false);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(presses, 0);
    EXPECT_TRUE(dialog.isVisible());
    dialog.cmdCancel->setEnabled(true);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(presses, 1);
}

TEST(FormTest, ClickOnATabAsksButShowsNothingByItself) {
    MainForm main;
    main.show();
    int asked = 0;
    QObject::connect(main.lblTab[1], &QToolButton::clicked, [&] { ++asked; });
    QTest::mouseClick(main.lblTab[1], Qt::LeftButton);
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(main.fraMain[0]->isVisible());
    EXPECT_FALSE(main.lblTab[1]->isChecked());
    main.ShowTab(1);
    EXPECT_TRUE(main.fraMain[1]->isVisible());
    EXPECT_FALSE(main.fraMain[0]->isVisible());
    EXPECT_TRUE(main.lblTab[1]->isChecked());
}

TEST(EditorTest, SlotsStandInTwoColumnsOnlyWhereThereIsRoom) {
    MainForm main;
    main.show();
    for (const auto& [width, columns] : {std::pair(800, 1), std::pair(2560, 2)}) {
        main.resize(width, 900);
        QCoreApplication::processEvents();
        EXPECT_EQ(main.fraFields->Columns(), columns) << width;
    }
}

TEST(EditorTest, SuggestionsOpenUnderTheCategoryBox) {
    MainForm main;
    main.show();
    main.txtMLFields_2->setFocus();
    main.fraZone->show();
    const QPoint box = main.txtMLFields_2->mapToGlobal(QPoint(0, main.txtMLFields_2->height()));
    const QPoint popup = main.fraZone->mapToGlobal(QPoint(0, 0));
    EXPECT_EQ(popup.x(), box.x());
    EXPECT_NEAR(popup.y(), box.y(), 2);
    EXPECT_EQ(main.fraZone->width(), main.txtMLFields_2->width());
    main.lstZone->addItem("Sofás");
    QTest::mouseClick(main.lstZone->viewport(), Qt::LeftButton);
    EXPECT_FALSE(main.lstZone->hasFocus()) << "the box being typed in keeps the focus";
}

TEST(EditorTest, TextOfAnotherLanguageIsAsHighAsItNeeds) {
    MainForm main;
    main.show();
    main.fraLangAssist->show();
    main.lblToTranslate->setText(QString("Solid oak dining table. ").repeated(30));
    QCoreApplication::processEvents();
    EXPECT_EQ(main.lblToTranslate->width(), main.shpLangAssist->width());
    EXPECT_GT(main.lblToTranslate->height(), main.shpLangAssist->height());
}

TEST(DropZoneTest, OnlyAcceptedLocalFilesMayBeDropped) {
    DropZone zone;
    QStringList asked;
    bool accept = false;
    QObject::connect(&zone, &DropZone::DraggedOver, [&](const QStringList& files, bool& answer) {
        asked << files;
        answer = accept;
    });
    const auto enter = [&](const char* url) {
        QMimeData data;
        data.setUrls({QUrl(url)});
        QDragEnterEvent event(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(&zone, &event);
        return event.isAccepted();
    };
    EXPECT_FALSE(enter("file:///tmp/a.tiff"));
    accept = true;
    EXPECT_TRUE(enter("file:///tmp/a.jpg"));
    EXPECT_FALSE(enter("http://example.invalid/a.jpg"));
    EXPECT_EQ(asked, QStringList({"/tmp/a.tiff", "/tmp/a.jpg"}));
}

} // namespace
