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
#include "store/products.h"
#include "store/store.h"

namespace {

constexpr int kMessageDelete = 3;
constexpr int kMessageDeleteTitle = 4;

constexpr int kSheetShow = 0; // actions of ShowSheet
constexpr int kSheetPrint = 1;
constexpr int kSheetMail = 2;

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
    AddDeletedItem("P", frmMain->txtProductId->text());
    const bool featured = frmMain->cboIsNew->currentIndex() == kStatusFeatured;
    try {
        DeleteProduct();
    } catch (const StoreError&) {
        LoadSelectedProduct(); // nothing was deleted: the product is opened again
        throw;
    }
    if (featured) {
        --FeaturedCount;
    }
    RemoveFromList();
}

void ToggleSearch() {
    QAction* search = frmMain->Button("Search");
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

void ShowProductSheet(const QString& kind) {
    SaveCurrentProduct();
    ShowSheet(kind + "|" + frmMain->txtProductId->text(), kSheetShow);
}

// The command alone. Save, Print, Mail and Import have none: every other step saves already.
void RunCommand(const QString& key) {
    if (key == u"Add") {
        AddNewProduct();
    } else if (key == u"Del") {
        DeleteCurrentProduct();
    } else if (key == u"Preview") {
        ShowProductSheet("PRODUCT");
    } else if (key == u"Layout") {
        ShowProductSheet("LAYOUT");
    } else if (key == u"Search") {
        ToggleSearch();
    } else if (key == u"LoanCalc") {
        ShowCalculator();
    }
}

void MoveFocusAfter(const QString& key) {
    if (key == u"Add") {
        frmMain->txtMLFields[0]->setFocus();
    } else if (key == u"Del") {
        frmMain->lstProductList->setFocus();
    }
}

void ChooseOutput(const QString& parentKey, int action) {
    LeaveAssistance(frmMain);
    ShowSheet(parentKey.toUpper() + "|" + frmMain->txtProductId->text(), action);
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
    frmMain->Button("Search")->setChecked(true);
    PressButton("Search");
}

void ConnectButtons() {
    for (const char* key : {"Add", "Del", "Save", "Preview", "Layout", "Report", "Print", "Mail",
                            "Import", "Search", "LoanCalc"}) {
        QObject::connect(frmMain->Button(key), &QAction::triggered, frmMain,
                         [key] { PressButton(key); });
    }
    for (const char* parent : {"Layout", "Report"}) {
        QObject::connect(frmMain->ButtonMenu(parent, "Print"), &QAction::triggered, frmMain,
                         [parent] { ChooseOutput(parent, kSheetPrint); });
        QObject::connect(frmMain->ButtonMenu(parent, "Mail"), &QAction::triggered, frmMain,
                         [parent] { ChooseOutput(parent, kSheetMail); });
    }
    QObject::connect(frmMain->cmdPictures, &QPushButton::clicked, frmMain, cmdPictures_Click);
    QObject::connect(frmMain->cmdInternalData, &QPushButton::clicked, frmMain, ShowInternalData);
}

void ConnectMenu() {
    static constexpr std::array<const char*, 6> kButtonOfEntry = {"Add",    "Del",   "Preview",
                                                                  "Layout", "Print", "Mail"};
    for (std::size_t entry = 0; entry < kButtonOfEntry.size(); ++entry) {
        QObject::connect(frmMain->mnuActionsC[entry], &QAction::triggered, frmMain,
                         [entry] { PressButton(kButtonOfEntry[entry]); });
    }
    QObject::connect(frmMain->mnuActionsC[6], &QAction::triggered, frmMain, PressSearch);
    QObject::connect(frmMain->mnuActionsC[8], &QAction::triggered, frmMain, cmdPictures_Click);
    QObject::connect(frmMain->mnuActionsC[9], &QAction::triggered, frmMain, ShowInternalData);
}

} // namespace

void PressButton(const QString& key) {
    LeaveAssistance(frmMain);
    {
        const BusyPointer busy;
        RunCommand(key);
    }
    if (key != u"Search" && ListRowCount() > 0) {
        SelectRow(SelectedRow()); // scrolls it into view
    }
    RefreshButtons();
    MoveFocusAfter(key);
}

void ConnectActions() {
    ConnectButtons();
    ConnectMenu();
}
