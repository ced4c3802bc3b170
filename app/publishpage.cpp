#include "app/publishpage.h"

#include "core/settings.h"
#include "core/vocabulary.h"
#include "details/templatepreview.h"
#include "editor/listrows.h"
#include "forms/mainform.h"
#include "site/steps.h"

namespace {

// A path of this length or more is shortened in its middle, characters.
constexpr int kPathShown = 48;
constexpr char kEllipsis[] = "...";

QString Shortened(const QString& path) {
    if (path.size() < kPathShown) {
        return path;
    }
    const auto half = (kPathShown - 3) / 2;
    return path.left(half) + kEllipsis + path.right(half);
}

void ShowDestination() {
    static const QStringList kLabels =
        QStringLiteral("Carpeta de acceso local:|Servidor de Internet:").split(u'|');
    const bool ftp = StorageMethod == kStorageFTP;
    const QString path =
        ftp ? "ftp://" + FTPServer + FTPPath : StoragePath.left(StoragePath.size() - 1);
    frmMain->lblWhereSave[0]->setText(kLabels[ftp ? 1 : 0]);
    frmMain->lblWhereSave[1]->setText(Shortened(path));
    frmMain->lblWhereSave[1]->setToolTip(path);
}

void ShowCounts() {
    const QString featured = QStringLiteral("%1 de %2").arg(FeaturedCount).arg(TemplMaxEmph);
    frmMain->lblNumProducts[0]->setText(
        QString(Messages[kMessageListed]).replace("%1", QString::number(ListRowCount())));
    frmMain->lblNumProducts[1]->setText(
        QString(Messages[kMessageFeatured]).replace("%1", featured));
}

QLabel* PictureOf(StepState state) {
    switch (state) {
    case StepState::ToDo:
        return frmMain->imgToDoStep;
    case StepState::Current:
        return frmMain->imgCurrentStep;
    case StepState::Done:
        return frmMain->imgDoneStep;
    case StepState::Failed:
        return frmMain->imgFailedStep;
    }
    return nullptr;
}

void ShowStepState(int step, StepState state) {
    QLabel* image = frmMain->imgStep[step];
    image->setPixmap(PictureOf(state)->pixmap(Qt::ReturnByValue));
    image->repaint();
}

void ShowSteps() {
    for (int step = 0; step < kStepCount; ++step) {
        const QString text = StepText(step);
        frmMain->lblSteps[step]->setText(text);
        frmMain->lblSteps[step]->setVisible(!text.isEmpty());
        frmMain->imgStep[step]->setVisible(!text.isEmpty());
        ShowStepState(step, StateOfStep(step));
    }
}

void ShowProgress(int value, int maximum, int minimum, int bar) {
    QProgressBar* progress = frmMain->prbProgress[bar];
    progress->setRange(minimum, maximum);
    progress->setValue(value);
}

void ShowActivity(const QString& text) {
    frmMain->lblInfo->setText(text);
}

void ShowRemaining(const QString& text) {
    frmMain->lblRemaining->setText(text);
}

} // namespace

void ConnectPublishPage() {
    ListenToPublish({ShowStepState, ShowProgress, ShowActivity, ShowRemaining});
    QObject::connect(frmMain, &QObject::destroyed, [] { ListenToPublish({}); });
}

void RefreshPublishTab(bool reloadPreview) {
    if (reloadPreview || frmMain->imgTemplPreview->pixmap(Qt::ReturnByValue).isNull()) {
        LoadTemplatePreview(TemplPath, frmMain->lblTemplName, nullptr, nullptr, nullptr,
                            frmMain->imgTemplPreview, 1);
    }
    ShowCounts();
    ShowDestination();
    SetUpSteps();
    ShowSteps();
}
