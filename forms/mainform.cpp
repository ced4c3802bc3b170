#include "forms/mainform.h"

#include "forms/assistpanel.h"
#include "forms/groups.h"
#include "forms/look.h"
#include "forms/toolbuttons.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QMenu>

MainForm* frmMain = nullptr;

namespace {

constexpr int kListRefreshInterval = 60000; // milliseconds
constexpr int kUpdateDelay = 6000;          // likewise
constexpr int kTwipsPerPoint = 20;
constexpr int kPointsPerInch = 72;
constexpr QSize kIconSize(256, 256); // pixels of the window's icon, which the desktop scales
constexpr int kSuggestionRows = 8;   // shown at once under the category box, at most
constexpr int kSuggestionGap = 4;    // between them, pixels

// What the columns hold at their widest, apart from the one that takes the rest.
constexpr char kWidestReference[] = "WWW-0000";
constexpr char kWidestPrice[] = "99.999.999";
constexpr int kStretchColumn = kColumnShortDesc;

} // namespace

MainForm::MainForm()
    : productList(new ProductListModel(this)), fraZone(nullptr), lstZone(nullptr),
      tmrListRefresh(new QTimer(this)), tmrUpdate(new QTimer(this)) {
    setupUi(this);
    frmMain = this;
    GatherGroups();
    SetUpToolBar();
    SetUpList();
    SetUpEditor();
    SetUpSuggestions();
    tmrListRefresh->setInterval(kListRefreshInterval);
    tmrUpdate->setInterval(kUpdateDelay);
    DressForm(this);
    setWindowIcon(DrawPicture("program", kIconSize, 1));
    for (QLabel* picture : imgStep) {
        picture->setPixmap(imgToDoStep->pixmap());
    }
    ShowTab(kTabCatalogue);
    lstProductList->setFocus();
}

MainForm::~MainForm() {
    frmMain = nullptr;
}

QAction* MainForm::Button(const QString& key) const {
    return findChild<QAction*>("tlbProducts_" + key);
}

QAction* MainForm::ButtonMenu(const QString& parentKey, const QString& key) const {
    return findChild<QAction*>("tlbProducts_" + parentKey + "_" + key);
}

void MainForm::AddListColumn(const QString& key, const QString& caption, int width,
                             bool rightAligned) {
    const int column = productList->columnCount();
    productList->AddColumn(key, caption, rightAligned);
    QHeaderView* header = lstProductList->header();
    if (column == kStretchColumn) {
        header->setSectionResizeMode(column, QHeaderView::Stretch);
        return;
    }
    const int asked = width * logicalDpiX() / (kTwipsPerPoint * kPointsPerInch);
    const int needed =
        fontMetrics().horizontalAdvance(column == kColumnRef ? kWidestReference : kWidestPrice) +
        2 * fontMetrics().averageCharWidth();
    header->setSectionResizeMode(column, QHeaderView::Interactive);
    header->resizeSection(column, std::max(asked, needed));
}

int MainForm::SelectedRow() const {
    return lstProductList->currentIndex().row();
}

void MainForm::SelectRow(int row) {
    const QModelIndex cell = productList->index(row, 0);
    lstProductList->setCurrentIndex(cell);
    if (cell.isValid()) {
        lstProductList->scrollTo(cell);
    }
}

QLineEdit* MainForm::AddHiddenField() {
    auto* field = new QLineEdit(fraFields);
    field->setObjectName(QString("txtFields_%1").arg(txtFields.size()));
    field->hide();
    txtFields.push_back(field);
    return field;
}

void MainForm::ShowTab(int index) {
    ShowTabPage(fraTabs, lblTab, fraMain, index);
}

void MainForm::closeEvent(QCloseEvent* event) {
    bool cancel = false;
    emit Unload(cancel);
    event->setAccepted(!cancel);
}

void MainForm::showEvent(QShowEvent* event) {
    if (!shownBefore) {
        shownBefore = true;
        tmrUpdate->start();
    }
    QMainWindow::showEvent(event);
}

bool MainForm::eventFilter(QObject* watched, QEvent* event) {
    const bool suggestionsMove = (watched == fraZone && event->type() == QEvent::Show) ||
                                 (watched == fraDetail && event->type() == QEvent::Resize);
    if (suggestionsMove) {
        PlaceSuggestions();
    } else if (watched == fraFields && event->type() == QEvent::LayoutRequest) {
        AlignLabels();
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainForm::GatherGroups() {
    lblFields = GatherGroup<QLabel>(this, "lblFields");
    shpFields = GatherGroup<QFrame>(this, "shpFields");
    txtFields = GatherGroup<QLineEdit>(this, "txtFields");
    chkFields = GatherGroup<QCheckBox>(this, "chkFields");
    cboFields = GatherGroup<QComboBox>(this, "cboFields");
    txtMLFields = GatherGroup<QWidget>(this, "txtMLFields");
    lblMLFields = GatherGroup<QLabel>(this, "lblMLFields");
    optLang = GatherGroup<QToolButton>(this, "optLang");
    lblLangScroll = GatherGroup<QToolButton>(this, "lblLangScroll");
    fraTabs = GatherGroup<QFrame>(this, "fraTabs");
    lblTab = GatherGroup<TabButton>(this, "lblTab");
    imgTab = GatherGroup<QToolButton>(this, "imgTab");
    fraMain = GatherGroup<QWidget>(this, "fraMain");
    lblNumProducts = GatherGroup<QLabel>(this, "lblNumProducts");
    lblWhereSave = GatherGroup<QLabel>(this, "lblWhereSave");
    optAllOrChanged = GatherGroup<QRadioButton>(this, "optAllOrChanged");
    cmdUpdateWeb = GatherGroup<QPushButton>(this, "cmdUpdateWeb");
    imgStep = GatherGroup<QLabel>(this, "imgStep");
    lblSteps = GatherGroup<QLabel>(this, "lblSteps");
    prbProgress = GatherGroup<QProgressBar>(this, "prbProgress");
    mnuTabs = GatherGroup<QAction>(this, "mnuTabs");
    mnuActions = GatherGroup<QMenu>(this, "mnuActions");
    mnuActionsC = GatherGroup<QAction>(this, "mnuActionsC");
    mnuActionsGen = GatherGroup<QAction>(this, "mnuActionsGen");
    mnuConfig = GatherGroup<QAction>(this, "mnuConfig");
    mnuCorpInfo = GatherGroup<QAction>(this, "mnuCorpInfo");
    mnuActions[kTabPublish]->menuAction()->setVisible(false);
}

void MainForm::SetUpToolBar() {
    for (const QString& key : {QString(kButtonLayout), QString(kButtonReport)}) {
        auto* choices = new QMenu(this);
        choices->addAction(ButtonMenu(key, kButtonPrint));
        choices->addAction(ButtonMenu(key, kButtonMail));
        Button(key)->setMenu(choices);
        auto* button = qobject_cast<QToolButton*>(tlbProducts->widgetForAction(Button(key)));
        button->setPopupMode(QToolButton::MenuButtonPopup);
    }
    MakeButtonsReachable(tlbProducts, imgPerlantaLogo, lstProductList);
}

void MainForm::SetUpList() {
    lstProductList->setModel(productList);
    lstProductList->setSortingEnabled(false);
    lstProductList->header()->setSectionsClickable(true);
    lstProductList->header()->setSectionsMovable(false);
    lstProductList->header()->setStretchLastSection(false);
    splMain->setStretchFactor(0, 2);
    splMain->setStretchFactor(1, 3);
}

void MainForm::SetUpEditor() {
    std::vector<QWidget*> fields;
    for (QLineEdit* field : txtFields) {
        fields.push_back(field->parentWidget()->parentWidget());
    }
    fraFields->SetSlots({lblFields.begin(), lblFields.end()}, fields);
    FollowTips(optLang);
    KeepTextWidth(shpLangAssist, lblToTranslate);
    fraDetail->installEventFilter(this);
    fraFields->installEventFilter(this);
}

// The boxes of the record and those of the slots under them begin on one line.
void MainForm::AlignLabels() {
    int width = 0;
    for (QLabel* label : {lblProductRef, lblMLFields_0, lblZone, lblPriceAmount, lblMLFields_1}) {
        width = std::max(width, label->sizeHint().width());
    }
    for (int slot = 0; slot < static_cast<int>(lblFields.size()); slot += fraFields->Columns()) {
        width = std::max(width, lblFields[slot]->sizeHint().width());
    }
    // Setting a width, also the same one, asks for another layout, which would come by here again.
    for (QGridLayout* layout : {layRecord, layFields}) {
        if (layout->columnMinimumWidth(0) != width) {
            layout->setColumnMinimumWidth(0, width);
        }
    }
}

void MainForm::SetUpSuggestions() {
    fraZone = new QFrame(fraDetail);
    fraZone->setObjectName("fraZone");
    fraZone->setProperty("role", "popup");
    fraZone->setFrameShape(QFrame::StyledPanel);
    fraZone->setAutoFillBackground(true);
    fraZone->hide();
    lstZone = new QListWidget(fraZone);
    lstZone->setObjectName("lstZone");
    lstZone->setAccessibleName("Sugerencias");
    lstZone->setFocusPolicy(Qt::NoFocus);
    lstZone->setFrameShape(QFrame::NoFrame);
    auto* inside = new QVBoxLayout(fraZone);
    inside->setContentsMargins(1, 1, 1, 1);
    inside->addWidget(lstZone);
    lstZone->setSpacing(kSuggestionGap / 2);
    fraZone->installEventFilter(this);
    connect(lstZone->model(), &QAbstractItemModel::rowsInserted, this, &MainForm::PlaceSuggestions);
}

// Right under the category box, as wide as it.
void MainForm::PlaceSuggestions() {
    if (!fraZone->isVisible()) {
        return;
    }
    const QWidget* box = txtZone->isVisible() ? txtZone : txtMLFields_2;
    const QPoint corner = box->mapTo(fraDetail, QPoint(0, box->height()));
    const int rows = std::clamp(lstZone->count(), 1, kSuggestionRows);
    const int height =
        rows * (lstZone->fontMetrics().height() + kSuggestionGap) + 2 * kSuggestionGap;
    fraZone->setGeometry(corner.x(), corner.y() + 1, box->width(),
                         std::min(height, fraDetail->height() - corner.y() - 2));
    fraZone->raise();
}
