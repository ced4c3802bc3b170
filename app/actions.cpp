#include "app/actions.h"

#include "app/sheet.h"
#include "core/settings.h"
#include "core/vocabulary.h"
#include "details/assistance.h"
#include "details/languages.h"
#include "details/picturealbum.h"
#include "editor/buttons.h"
#include "editor/calculator.h"
#include "editor/clearform.h"
#include "editor/internaldata.h"
#include "editor/productlist.h"
#include "editor/search.h"
#include "forms/mainform.h"
#include "platform/dialogs.h"
#include "store/openrecord.h"
#include "store/products.h"
#include "store/store.h"

namespace {

// The busy pointer while a command runs, whatever ends it.
class BusyPointer {
public:
    BusyPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyPointer() { QGuiApplication::restoreOverrideCursor(); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};

void SaveListedProduct() {
    if (ListRowCount() > 0) {
        SaveCurrentProduct();
    }
}

void AddNewProduct() {
    SaveListedProduct();
    ClearProductForm();
    try {
        AddProduct();
    } catch (const StoreError&) {
        LoadSelectedProduct(); // nothing was added: the selected product is shown again
        throw;
    }
    AppendNewProductRow();
}

// After a save that did not leave the product: takes its row again. False if another user has been
// quicker, who shows as such.
bool HoldProduct() {
    switch (ReopenProduct()) {
    case ProductState::Held:
        return true;
    case ProductState::ReadOnly:
        RefreshButtons();
        return false;
    case ProductState::Gone:
        TellProductGone();
        return false;
    }
    return false;
}

void DeleteCurrentProduct() {
    if (MsgBox(Messages[kMessageDelete], BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::No,
               Messages[kMessageDeleteTitle]) != BoxAnswer::Yes) {
        return;
    }
    if (!HoldProduct()) {
        return;
    }
    AddDeletedItem(DeletedItem::Product, frmMain->txtProductId->text());
    const bool featured = frmMain->cboIsNew->currentIndex() == kStatusFeatured;
    try {
        DeleteProduct();
    } catch (const StoreError&) {
        LoadSelectedProduct(); // nothing was deleted: the product is opened again
        throw;
    }
    if (featured) {
        CountFeaturedDeleted();
    }
    RemoveFromList();
}

void ToggleSearch() {
    QAction* search = frmMain->Button(kButtonSearch);
    try {
        SaveListedProduct();
    } catch (const StoreError&) {
        search->toggle(); // nothing was searched
        throw;
    }
    if (search->isChecked()) {
        ShowSearch();
    } else {
        FilterProductList({});
        RefreshProductList();
    }
    frmMain->fraNoProductsFound->setVisible(ListRowCount() == 0);
}

void ShowProductSheet(SheetKind kind) {
    SaveCurrentProduct();
    ShowSheet(kind, frmMain->txtProductId->text(), SheetAction::Show);
}

// The command alone. Save, Print, Mail and Import have none: every other step saves already.
void RunCommand(const QString& key) {
    if (key == kButtonAdd) {
        AddNewProduct();
    } else if (key == kButtonDel) {
        DeleteCurrentProduct();
    } else if (key == kButtonPreview) {
        ShowProductSheet(SheetKind::Product);
    } else if (key == kButtonLayout) {
        ShowProductSheet(SheetKind::Layout);
    } else if (key == kButtonSearch) {
        ToggleSearch();
    } else if (key == kButtonLoanCalc) {
        ShowCalculator();
    }
}

void MoveFocusAfter(const QString& key) {
    if (key == kButtonAdd) {
        frmMain->txtMLFields[kTextTitle]->setFocus();
    } else if (key == kButtonDel) {
        frmMain->lstProductList->setFocus();
    }
}

void ChooseOutput(SheetKind kind, SheetAction action) {
    LeaveAssistance(frmMain);
    ShowSheet(kind, frmMain->txtProductId->text(), action);
}

void cmdPictures_Click() {
    const QString lang = UICurrentLang;
    SaveCurrentProduct();
    // What the album changes stamps the product, so its row is held meanwhile.
    if (!HoldProduct() && !ProductIsReadOnly()) {
        return; // it is gone
    }
    ShowPictureAlbum();
    ReturnToLanguage(lang);
}

void PressSearch() {
    frmMain->Button(kButtonSearch)->setChecked(true);
    PressButton(kButtonSearch);
}

void ConnectButtons() {
    for (const auto key :
         {kButtonAdd, kButtonDel, kButtonSave, kButtonPreview, kButtonLayout, kButtonReport,
          kButtonPrint, kButtonMail, kButtonImport, kButtonSearch, kButtonLoanCalc}) {
        QObject::connect(frmMain->Button(key), &QAction::triggered, frmMain,
                         [key] { PressButton(key); });
    }
    QObject::connect(frmMain->cmdPictures, &QPushButton::clicked, frmMain, cmdPictures_Click);
    QObject::connect(frmMain->cmdInternalData, &QPushButton::clicked, frmMain, ShowInternalData);
}

void ConnectDropDown(const QString& button, SheetKind kind) {
    QObject::connect(frmMain->ButtonMenu(button, kButtonPrint), &QAction::triggered, frmMain,
                     [kind] { ChooseOutput(kind, SheetAction::Print); });
    QObject::connect(frmMain->ButtonMenu(button, kButtonMail), &QAction::triggered, frmMain,
                     [kind] { ChooseOutput(kind, SheetAction::Mail); });
}

void ConnectMenu() {
    static constexpr std::array<std::pair<ProductEntry, QLatin1StringView>, 6> kButtonOfEntry = {
        {{kEntryAdd, kButtonAdd},
         {kEntryDel, kButtonDel},
         {kEntryPreview, kButtonPreview},
         {kEntryLayout, kButtonLayout},
         {kEntryPrint, kButtonPrint},
         {kEntryMail, kButtonMail}}};
    for (const auto& [entry, key] : kButtonOfEntry) {
        QObject::connect(frmMain->mnuActionsC[entry], &QAction::triggered, frmMain,
                         [button = key] { PressButton(button); });
    }
    QObject::connect(frmMain->mnuActionsC[kEntrySearch], &QAction::triggered, frmMain, PressSearch);
    QObject::connect(frmMain->mnuActionsC[kEntryPictures], &QAction::triggered, frmMain,
                     cmdPictures_Click);
    QObject::connect(frmMain->mnuActionsC[kEntryInternalData], &QAction::triggered, frmMain,
                     ShowInternalData);
}

} // namespace

void PressButton(const QString& key) {
    LeaveAssistance(frmMain);
    {
        const BusyPointer busy;
        RunCommand(key);
    }
    if (key != kButtonSearch && ListRowCount() > 0) {
        SelectRow(SelectedRow()); // scrolls it into view
    }
    RefreshButtons();
    MoveFocusAfter(key);
}

void ConnectActions() {
    ConnectButtons();
    ConnectDropDown(kButtonLayout, SheetKind::Layout);
    ConnectDropDown(kButtonReport, SheetKind::Report);
    ConnectMenu();
}
