// The main form: menus, the tab "Gestión Catálogo" with the product list and the editor, and the
// tab "Actualizar Web" with the steps of a publish. Controls only; their handlers live in editor/
// and app/. Owns frmMain.
#pragma once

#include "ui_mainform.h"

#include "forms/productlistmodel.h"

#include <QListWidget>
#include <QMainWindow>
#include <QTimer>
#include <vector>

// Keys of the buttons of tlbProducts; kButtonPrint and kButtonMail are those of the drop-downs,
// too.
inline constexpr QLatin1StringView kButtonAdd("Add");
inline constexpr QLatin1StringView kButtonDel("Del");
inline constexpr QLatin1StringView kButtonSave("Save");
inline constexpr QLatin1StringView kButtonPreview("Preview");
inline constexpr QLatin1StringView kButtonLayout("Layout");
inline constexpr QLatin1StringView kButtonReport("Report");
inline constexpr QLatin1StringView kButtonPrint("Print");
inline constexpr QLatin1StringView kButtonMail("Mail");
inline constexpr QLatin1StringView kButtonImport("Import");
inline constexpr QLatin1StringView kButtonSearch("Search");
inline constexpr QLatin1StringView kButtonLoanCalc("LoanCalc");

// Places in the groups of the form.
enum MainTab { kTabCatalogue = 0, kTabPublish = 1 }; // of fraMain, mnuTabs, mnuActions
enum MainText { kTextTitle = 0, kTextDescription = 1, kTextCategory = 2 }; // of txtMLFields
enum ProductEntry { // of mnuActionsC; 7 is a line
    kEntryAdd = 0,
    kEntryDel = 1,
    kEntryPreview = 2,
    kEntryLayout = 3,
    kEntryPrint = 4,
    kEntryMail = 5,
    kEntrySearch = 6,
    kEntryPictures = 8,
    kEntryInternalData = 9,
    kEntryLoanCalc = 10 // does nothing: the button has the command
};
enum PublishEntry { kEntryUpdate = 0, kEntryDesign = 1, kEntryHosting = 2 }; // of mnuActionsGen
enum PublishButton { kPublishUpdate = 0, kPublishCancel = 1 };               // of cmdUpdateWeb
enum PublishExtent { kPublishChanged = 0, kPublishAll = 1 };                 // of optAllOrChanged

class MainForm : public QMainWindow, public Ui::MainForm {
    Q_OBJECT

public:
    MainForm();
    ~MainForm() override;

    // Button of tlbProducts by its key; null for a text that is none.
    QAction* Button(const QString& key) const;

    // Entry of the drop-down of button `parentKey` (kButtonLayout, kButtonReport) by its key
    // (kButtonPrint, kButtonMail).
    QAction* ButtonMenu(const QString& parentKey, const QString& key) const;

    // Adds a column to lstProductList. `width` is in twentieths of a point and gives way to what
    // the column's usual text needs; the second column takes what the others leave.
    void AddListColumn(const QString& key, const QString& caption, int width, bool rightAligned);

    // Selected row of lstProductList from 0, or -1.
    int SelectedRow() const;

    // Makes the row current and scrolls it into view; a row that isn't there leaves none current.
    void SelectRow(int row);

    // Appends a hidden element to txtFields, for the internal fields beyond the slots.
    QLineEdit* AddHiddenField();

    // Shows page `index` and marks its tab, no more.
    void ShowTab(int index);

    // Groups, by index.
    std::vector<QLabel*> lblFields;    // slots: caption,
    std::vector<QFrame*> shpFields;    // frame of the text box,
    std::vector<QLineEdit*> txtFields; // text box, which always holds the value,
    std::vector<QCheckBox*> chkFields; // and the two other views on the value
    std::vector<QComboBox*> cboFields;
    std::vector<QWidget*> txtMLFields; // line, text, line
    std::vector<QLabel*> lblMLFields;  // 0 and 1
    std::vector<QToolButton*> optLang;
    std::vector<QToolButton*> lblLangScroll;
    std::vector<QFrame*> fraTabs;
    std::vector<TabButton*> lblTab;
    std::vector<QToolButton*> imgTab;
    std::vector<QWidget*> fraMain;
    std::vector<QLabel*> lblNumProducts;
    std::vector<QLabel*> lblWhereSave;
    std::vector<QRadioButton*> optAllOrChanged;
    std::vector<QPushButton*> cmdUpdateWeb;
    std::vector<QLabel*> imgStep;
    std::vector<QLabel*> lblSteps;
    std::vector<QProgressBar*> prbProgress;
    std::vector<QAction*> mnuTabs;
    std::vector<QMenu*> mnuActions; // one for each tab; only that of the shown page is visible
    std::vector<QAction*> mnuActionsC;
    std::vector<QAction*> mnuActionsGen;
    std::vector<QAction*> mnuConfig;
    std::vector<QAction*> mnuCorpInfo;

    ProductListModel* productList; // rows of lstProductList

    // Suggestions under the category box; they float above the editor and never take the focus.
    QFrame* fraZone;
    QListWidget* lstZone;

    QTimer* tmrListRefresh; // 60,000 ms, off at start
    QTimer* tmrUpdate;      // 6,000 ms, runs from the first showing until its handler stops it

signals:
    // The form is about to close; a receiver that sets `cancel` keeps it open.
    void Unload(bool& cancel);

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void GatherGroups();
    void SetUpToolBar();
    void SetUpList();
    void SetUpEditor();
    void SetUpSuggestions();
    void AlignLabels();
    void PlaceSuggestions();

    bool shownBefore = false;
};

// The one main form: set by its constructor, cleared by its destructor.
extern MainForm* frmMain;
