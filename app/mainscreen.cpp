#include "app/mainscreen.h"

#include "app/actions.h"
#include "config/configdialog.h"
#include "core/settings.h"
#include "core/vocabulary.h"
#include "details/about.h"
#include "details/assistance.h"
#include "details/corpinfodialog.h"
#include "details/languages.h"
#include "details/templatepreview.h"
#include "editor/productform.h"
#include "editor/productlist.h"
#include "forms/mainform.h"
#include "platform/controlevents.h"
#include "site/steps.h"
#include "store/corpinfo.h"
#include "store/fielddefs.h"
#include "store/languages.h"
#include "store/productref.h"
#include "store/products.h"
#include "store/store.h"

namespace {

constexpr int kTabPublish = 1;
constexpr int kStorageFTP = 1;

constexpr int kMessageListed = 1;
constexpr int kMessageFeatured = 2;

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

// The configuration may have moved the catalogue: then the new one is opened in place of the old.
void OpenConfig(int page) {
    const QString before = DBpath;
    ShowConfig(page);
    if (DBpath != before) {
        ReleaseCurrent();
        CloseStore();
        while (OpenStore() != 0) {
            ShowConfig(kPageAdvanced);
        }
        LoadLanguages();
        ArrangeLangButtons(frmMain->fraLang, frmMain->optLang);
        LoadCorpInfo();
        LoadFieldDefs();
        RestartProductList();
    }
    RefreshPublishTab(true);
}

void OpenCorpInfo(int page) {
    const QString lang = UICurrentLang;
    SaveCurrentProduct();
    ShowCorpInfo(page);
    ReturnToLanguage(lang);
}

void ConnectTabs() {
    for (int tab = 0; tab < static_cast<int>(frmMain->lblTab.size()); ++tab) {
        const auto select = [tab] { SelectMainTab(tab); };
        QObject::connect(frmMain->lblTab[tab], &QToolButton::clicked, frmMain, select);
        QObject::connect(frmMain->imgTab[tab], &QToolButton::clicked, frmMain, select);
        QObject::connect(frmMain->mnuTabs[tab], &QAction::triggered, frmMain, select);
    }
}

void ConnectMenus() {
    for (int page = 0; page < static_cast<int>(frmMain->mnuConfig.size()); ++page) {
        QObject::connect(frmMain->mnuConfig[page], &QAction::triggered, frmMain,
                         [page] { OpenConfig(page); });
    }
    for (int page = 0; page < static_cast<int>(frmMain->mnuCorpInfo.size()); ++page) {
        QObject::connect(frmMain->mnuCorpInfo[page], &QAction::triggered, frmMain,
                         [page] { OpenCorpInfo(page); });
    }
    const auto openDesigns = [] { OpenConfig(kPageDesign); };
    const auto openHosting = [] { OpenConfig(kPageHosting); };
    QObject::connect(frmMain->cmdTemplates, &QPushButton::clicked, frmMain, openDesigns);
    QObject::connect(frmMain->cmdHosting, &QPushButton::clicked, frmMain, openHosting);
    QObject::connect(frmMain->mnuActionsGen[0], &QAction::triggered, frmMain->cmdUpdateWeb[0],
                     &QPushButton::click);
    QObject::connect(frmMain->mnuActionsGen[1], &QAction::triggered, frmMain, openDesigns);
    QObject::connect(frmMain->mnuActionsGen[2], &QAction::triggered, frmMain, openHosting);
    QObject::connect(frmMain->mnuExit, &QAction::triggered, frmMain, &QWidget::close);
    QObject::connect(frmMain->mnuHelpContents, &QAction::triggered, frmMain, OpenManual);
    QObject::connect(frmMain->mnuAbout, &QAction::triggered, frmMain, ShowAbout);
    QObject::connect(frmMain->imgPerlantaLogo, &QToolButton::clicked, frmMain, OpenHomePage);
}

QString OpenProductId() {
    return frmMain->txtProductId->text();
}

void ConnectTextAssistance() {
    auto* events = new ControlEvents(frmMain);
    for (QWidget* box : frmMain->txtMLFields) {
        events->Watch(box);
    }
    ConnectAssistance({frmMain->fraLangAssist, frmMain->lblToTranslate, frmMain->lblLangScroll,
                       frmMain->txtMLFields, "Products"},
                      events, OpenProductId);
}

} // namespace

void ConnectMainScreen() {
    ConnectProductList();
    ConnectProductForm();
    ConnectLangButtons();
    ConnectTextAssistance();
    ConnectActions();
    ConnectTabs();
    ConnectMenus();
}

void LeaveMainScreen(bool& cancel) {
    cancel = false;
    if (!StoreOpen) {
        return;
    }
    if (ListRowCount() > 0) {
        ValidateProductRef(cancel, false);
    }
    cancel = cancel || !SaveBeforeEnd(SaveCurrentProduct);
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

void RefreshPublishTab(bool reloadPreview) {
    if (reloadPreview || frmMain->imgTemplPreview->pixmap(Qt::ReturnByValue).isNull()) {
        LoadTemplatePreview(TemplPath, frmMain->lblTemplName, nullptr, nullptr, nullptr,
                            frmMain->imgTemplPreview, 1);
    }
    ShowCounts();
    ShowDestination();
    SetUpSteps();
}
