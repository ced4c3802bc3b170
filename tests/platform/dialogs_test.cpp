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

TEST(Dialogs, BoxShowsWhatItIsGiven) {
    WhenShown<QMessageBox>([](QMessageBox* box) {
        EXPECT_EQ(box->text(), "Línea <b>1</b>\nLínea 2");
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->windowTitle(), "Lumenta");
        EXPECT_EQ(box->icon(), QMessageBox::Warning);
        ASSERT_EQ(box->buttons().size(), 1);
        EXPECT_EQ(box->buttons()[0]->text(), "&Aceptar");
        QTest::keyClick(box, Qt::Key_Escape);
    });
    EXPECT_EQ(MsgBox("Línea <b>1</b>\nLínea 2", BoxIcon::Warning, BoxButtons::Ok, BoxAnswer::Ok,
                     "Lumenta"),
              BoxAnswer::Ok);
}

TEST(Dialogs, QuestionIsAnsweredByButtonKeyDefaultOrClosing) {
    struct Case {
        BoxAnswer defaultAnswer;
        std::function<void(QMessageBox*)> act;
        BoxAnswer answer;
    };
    const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        return [=](QMessageBox* box) { QTest::keyClick(box, key, modifiers); };
    };
    const Case cases[] = {
        {BoxAnswer::Yes, press(Qt::Key_Return), BoxAnswer::Yes},
        {BoxAnswer::No, press(Qt::Key_Return), BoxAnswer::No},
        {BoxAnswer::Yes, press(Qt::Key_Escape), BoxAnswer::No},
        {BoxAnswer::Yes, [](QMessageBox* box) { box->close(); }, BoxAnswer::No},
        {BoxAnswer::No, [](QMessageBox* box) { box->button(QMessageBox::Yes)->click(); },
         BoxAnswer::Yes},
        {BoxAnswer::Yes, press(Qt::Key_N, Qt::AltModifier), BoxAnswer::No},
    };
    for (const Case& item : cases) {
        WhenShown<QMessageBox>(item.act);
        EXPECT_EQ(MsgBox("¿Seguro?", BoxIcon::Question, BoxButtons::YesNo, item.defaultAnswer, "?"),
                  item.answer)
            << &item - cases;
    }
}

TEST(Dialogs, ChoicesComeBackAsPathsOrEmpty) {
    LoadToolkitTexts();
    const QTemporaryDir home;
    QDir(home.path()).mkdir("fotos");
    const QString picture = WriteFile(home.filePath("fotos/CASA.JPG"), {});
    for (const QString& folder : {home.filePath("fotos"), QString("/"), QString()}) {
        const PathChoice choice(folder);
        EXPECT_EQ(BrowseFolder(nullptr, "Carpeta"), folder);
    }
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
