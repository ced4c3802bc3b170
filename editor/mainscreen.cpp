#include "editor/mainscreen.h"

#include "core/settings.h"
#include "core/vocabulary.h"
#include "editor/buttons.h"
#include "editor/productform.h"
#include "editor/productlist.h"
#include "forms/mainform.h"
#include "generator/templatepreview.h"
#include "publish/steps.h"
#include "store/productref.h"
#include "store/products.h"

namespace {

constexpr int kTabPublish = 1;
constexpr int kStorageFTP = 1;

constexpr int kMessageListed = 1;
constexpr int kMessageFeatured = 2;

// A longer path is shortened in its middle, characters.
constexpr int kPathShown = 48;

QString Shortened(const QString& path) {
    if (path.size() < kPathShown) {
        return path;
    }
    const auto half = (kPathShown - 3) / 2;
    return path.left(half) + "..." + path.right(half);
}

void ShowDestination() {
    const QStringList labels =
        QStringLiteral("Carpeta de acceso local:|Servidor de Internet:").split(u'|');
    const bool ftp = StorageMethod == kStorageFTP;
    const QString path =
        ftp ? "ftp://" + FTPServer + FTPPath : StoragePath.left(StoragePath.size() - 1);
    frmMain->lblWhereSave[0]->setText(labels[ftp ? 1 : 0]);
    frmMain->lblWhereSave[1]->setText(Shortened(path));
    frmMain->lblWhereSave[1]->setToolTip(path);
}

void ShowCounts() {
    frmMain->lblNumProducts[0]->setText(
        QString(Messages[kMessageListed]).replace("%1", QString::number(ListRowCount())));
    frmMain->lblNumProducts[1]->setText(
        QString(Messages[kMessageFeatured])
            .replace("%1", QStringLiteral("%1 de %2").arg(FeaturedCount).arg(TemplMaxEmph)));
}

} // namespace

void RefreshPublishTab(bool reloadPreview) {
    if (reloadPreview || frmMain->imgTemplPreview->pixmap(Qt::ReturnByValue).isNull()) {
        LoadTemplatePreview(TemplPath, frmMain->lblTemplName, nullptr, nullptr, nullptr,
                            frmMain->imgTemplPreview, 1);
    }
    ShowCounts();
    ShowDestination();
    SetUpSteps();
}

void SelectMainTab(int tab) {
    if (tab == kTabPublish) {
        SaveCurrentProduct();
        RefreshPublishTab(false);
    }
    frmMain->ShowTab(tab);
    for (int entry = 0; entry < static_cast<int>(frmMain->mnuTabs.size()); ++entry) {
        frmMain->mnuTabs[entry]->setChecked(entry == tab);
        frmMain->mnuActions[entry]->menuAction()->setVisible(entry == tab);
    }
}

void LeaveMainScreen(bool& cancel) {
    cancel = false;
    if (ListRowCount() > 0) {
        ValidateProductRef(cancel, false);
    }
    if (!cancel) {
        SaveCurrentProduct();
    }
}

void ConnectMainScreen() {
    for (int tab = 0; tab < static_cast<int>(frmMain->lblTab.size()); ++tab) {
        QObject::connect(frmMain->lblTab[tab], &QToolButton::clicked, frmMain,
                         [tab] { SelectMainTab(tab); });
        QObject::connect(frmMain->mnuTabs[tab], &QAction::triggered, frmMain,
                         [tab] { SelectMainTab(tab); });
    }
    QObject::connect(frmMain->mnuExit, &QAction::triggered, frmMain, &QWidget::close);
}
