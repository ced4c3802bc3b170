#include "platform/dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QTranslator>
#include <cstdio>

namespace {

// Names and patterns in turn, patterns of one name separated by ";".
constexpr char kPictureFilter[] = "Todas las Imágenes|*.gif;*.jpg;*.jpeg;*.bmp|Imágenes GIF|*.gif|"
                                  "Imágenes JPEG|*.jpg;*.jpeg|Imágenes BMP|*.bmp|"
                                  "Todos los Ficheros|*.*";

bool unattended = false;

QMessageBox::Icon ToolkitIcon(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::Information:
        return QMessageBox::Information;
    case BoxIcon::Question:
        return QMessageBox::Question;
    case BoxIcon::Warning:
        return QMessageBox::Warning;
    case BoxIcon::Critical:
        return QMessageBox::Critical;
    case BoxIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QWidget* OwnerWindow() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

BoxAnswer AnswerUnattended(const QString& text, BoxButtons buttons, const QString& title) {
    const QByteArray line = (title.isEmpty() ? text : title + ": " + text).toUtf8();
    std::fprintf(stderr, "%s\n", line.constData());
    return buttons == BoxButtons::YesNo ? BoxAnswer::No : BoxAnswer::Ok;
}

// The patterns in both cases, since cameras write ".JPG" and not every platform's dialog passes
// over case. "*.*" means every file, with or without a dot.
QString ToolkitPatterns(const QString& patterns) {
    if (patterns == u"*.*") {
        return QStringLiteral("*");
    }
    const QStringList lower = patterns.split(u';');
    return (lower + patterns.toUpper().split(u';')).join(u' ');
}

QStringList ToolkitFilters(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype at = 0; at + 1 < parts.size(); at += 2) {
        filters += parts[at] + " (" + ToolkitPatterns(parts[at + 1]) + ')';
    }
    return filters;
}

QString RunFileDialog(QFileDialog& dialog) {
    const bool chosen = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
    return chosen ? dialog.selectedFiles().first() : QString();
}

} // namespace

void LoadToolkitTexts() {
    auto* translator = new QTranslator(qApp);
    if (translator->load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(translator);
    }
}

BoxAnswer MsgBox(const QString& text, BoxIcon icon, BoxButtons buttons, BoxAnswer defaultAnswer,
                 const QString& title) {
    if (unattended) {
        return AnswerUnattended(text, buttons, title);
    }
    QMessageBox box(ToolkitIcon(icon), title, text, QMessageBox::NoButton, OwnerWindow());
    box.setTextFormat(Qt::PlainText);
    if (buttons == BoxButtons::Ok) {
        box.addButton(QMessageBox::Ok)->setText(QStringLiteral("&Aceptar"));
        box.exec();
        return BoxAnswer::Ok;
    }
    QPushButton* yes = box.addButton(QMessageBox::Yes);
    QPushButton* no = box.addButton(QMessageBox::No);
    yes->setText(QStringLiteral("&Sí"));
    no->setText(QStringLiteral("&No"));
    box.setDefaultButton(defaultAnswer == BoxAnswer::Yes ? yes : no);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes ? BoxAnswer::Yes : BoxAnswer::No;
}

void MsgBox(const QString& text, BoxIcon icon, const QString& title) {
    MsgBox(text, icon, BoxButtons::Ok, BoxAnswer::Ok, title);
}

void SetUnattended() {
    unattended = true;
}

bool IsUnattended() {
    return unattended;
}

QString BrowseFolder(QWidget* form, const QString& title) {
    if (unattended) {
        return {};
    }
    QFileDialog dialog(form, title);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    QString folder = RunFileDialog(dialog);
    while (folder.size() > 1 && folder.endsWith(u'/')) {
        folder.chop(1);
    }
    return folder;
}

QString BrowsePicture(QWidget* form, const QString& title, const QString& folder) {
    if (unattended) {
        return {};
    }
    const bool isThere = !folder.isEmpty() && QFileInfo(folder).isDir();
    QFileDialog dialog(
        form, title,
        isThere ? folder : QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(ToolkitFilters(QString::fromUtf8(kPictureFilter)));
    return RunFileDialog(dialog);
}
