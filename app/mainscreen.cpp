#include "app/mainscreen.h"

#include "app/actions.h"
#include "app/publishpage.h"
#include "config/configdialog.h"
#include "core/settings.h"
#include "details/about.h"
#include "details/assistance.h"
#include "details/corpinfodialog.h"
#include "details/languages.h"
#include "editor/productform.h"
#include "editor/productlist.h"
#include "forms/mainform.h"
#include "platform/controlevents.h"
#include "store/corpinfo.h"
#include "store/fielddefs.h"
#include "store/languages.h"
#include "store/langvalues.h"
#include "store/productref.h"
#include "store/products.h"
#include "store/store.h"

namespace {

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
    QObject::connect(frmMain->mnuActionsGen[kEntryUpdate], &QAction::triggered,
                     frmMain->cmdUpdateWeb[kPublishUpdate], &QPushButton::click);
    QObject::connect(frmMain->mnuActionsGen[kEntryDesign], &QAction::triggered, frmMain,
                     openDesigns);
    QObject::connect(frmMain->mnuActionsGen[kEntryHosting], &QAction::triggered, frmMain,
                     openHosting);
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
                       frmMain->txtMLFields, TextTable::Products},
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
