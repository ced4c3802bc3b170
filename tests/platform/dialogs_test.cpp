#include "platform/dialogs.h"
#include "platform/notify.h"
#include "tests/support/boxes.h"
#include "tests/support/files.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace {

constexpr int kPatience = 5000; // milliseconds

// Calls `answer` with the next dialog of the class that appears; fails if none does.
template <typename Dialog> void WhenShown(const std::function<void(Dialog*)>& answer) {
    auto* look = new QTimer(qApp);
    auto tries = std::make_shared<int>(0);
    QObject::connect(look, &QTimer::timeout, look, [=] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr && ++*tries < kPatience / 5) {
            return;
        }
        look->stop();
        look->deleteLater();
        ASSERT_NE(dialog, nullptr);
        answer(dialog);
    });
    look->start(5);
}

// Throws when it gets a user event, like a handler with a store failure.
class FailingObject : public QObject {
public:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::User) {
            throw std::runtime_error("No se ha podido leer la ñ");
        }
        return QObject::event(event);
    }
};

void PostFailure(FailingObject& object) {
    QCoreApplication::postEvent(&object, new QEvent(QEvent::User));
}

} // namespace

TEST(Dialogs, BoxShowsWhatItIsGivenAsPlainText) {
    WhenShown<QMessageBox>([](QMessageBox* box) {
        EXPECT_EQ(box->text(), "Línea <b>1</b>\nLínea 2");
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->windowTitle(), "Lumenta");
        EXPECT_EQ(box->buttons().value(0)->text(), "&Aceptar");
        QTest::keyClick(box, Qt::Key_Escape);
    });
    MsgBox("Línea <b>1</b>\nLínea 2", BoxIcon::Warning, "Lumenta");
}

TEST(Dialogs, QuestionIsAnsweredByItsDefaultAndEscapeIsNo) {
    for (const BoxAnswer standard : {BoxAnswer::Yes, BoxAnswer::No}) {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            WhenShown<QMessageBox>([key](QMessageBox* box) { QTest::keyClick(box, key); });
            EXPECT_EQ(MsgBox("¿Seguro?", BoxIcon::Question, BoxButtons::YesNo, standard, "?"),
                      key == Qt::Key_Return ? standard : BoxAnswer::No);
        }
    }
}

TEST(Dialogs, PicturesAreChosenByTheirKindInTheFolderOfTheLastOne) {
    LoadToolkitTexts();
    const QTemporaryDir home;
    QDir(home.path()).mkdir("fotos");
    const QString picture = WriteFile(home.filePath("fotos/CASA.JPG"), {});
    WhenShown<QFileDialog>([&](QFileDialog* dialog) {
        EXPECT_EQ(dialog->windowTitle(), "Foto");
        EXPECT_EQ(dialog->directory().path(), home.filePath("fotos"));
        EXPECT_TRUE(dialog->testOption(QFileDialog::HideNameFilterDetails));
        EXPECT_EQ(dialog->nameFilters().join('|').toStdString(),
                  "Todas las Imágenes (*.gif *.jpg *.jpeg *.bmp *.GIF *.JPG *.JPEG *.BMP)|"
                  "Imágenes GIF (*.gif *.GIF)|Imágenes JPEG (*.jpg *.jpeg *.JPG *.JPEG)|"
                  "Imágenes BMP (*.bmp *.BMP)|Todos los Ficheros (*)");
        EXPECT_EQ(dialog->labelText(QFileDialog::Reject), "Cancelar"); // the toolkit's own text
        ChoosePath(dialog, picture);
    });
    EXPECT_EQ(BrowsePicture(nullptr, "Foto", home.filePath("fotos")), picture);
}

TEST(Notify, UnhandledFailureIsShownOnceAndTheProgramGoesOn) {
    SetErrorTitle("Lumenta");
    FailingObject object;
    int boxes = 0;
    WhenShown<QMessageBox>([&](QMessageBox* box) {
        ++boxes;
        EXPECT_EQ(box->text(), "No se ha podido leer la ñ");
        EXPECT_EQ(box->windowTitle(), "Lumenta");
        EXPECT_EQ(box->icon(), QMessageBox::Warning);
        PostFailure(object); // fails while the first failure is on screen
        QTimer::singleShot(0, box, [=] {
            EXPECT_EQ(QApplication::activeModalWidget(), box);
            box->accept();
        });
    });
    PostFailure(object);
    QCoreApplication::processEvents();
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}
