// Answers the real message boxes that a test provokes, as a user would, and keeps what they said.
#pragma once

#include <QFileDialog>
#include <QMessageBox>
#include <QObject>
#include <QString>
#include <vector>

struct SeenBox {
    QString title;
    QString text;
    QMessageBox::Icon icon;
};

// While it lives, every message box is answered as soon as it is on screen.
class BoxAnswers : public QObject {
public:
    // `answer` is pressed where a box has it; its default button, or its only one, otherwise.
    explicit BoxAnswers(QMessageBox::StandardButton answer = QMessageBox::NoButton);

    // All boxes so far, in order.
    std::vector<SeenBox> seen;

    // Their texts, joined by "|".
    QString Texts() const;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void Answer(QMessageBox* box);

    QMessageBox::StandardButton answer;
};

// Types the path and accepts; an empty one cancels. The dialog's own selectFile() would not do: it
// leaves alone a box that has got the focus already.
void ChoosePath(QFileDialog* dialog, const QString& path);

// While it lives, every choice of a file or folder ends with this path, without a "/" behind it; an
// empty one cancels.
class PathChoice : public QObject {
public:
    explicit PathChoice(const QString& path);

    QString title; // of the last choice

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QString path;
};
