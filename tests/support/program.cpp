#include "tests/support/program.h"

#include "app/mainscreen.h"
#include "core/flavour.h"
#include "core/settings.h"
#include "core/vocabulary.h"
#include "details/languages.h"
#include "editor/productlist.h"
#include "engine/statement.h"
#include "engine/storeengine.h"
#include "forms/mainform.h"
#include "platform/events.h"
#include "store/fielddefs.h"
#include "store/languages.h"
#include "store/store.h"
#include "tests/support/files.h"
#include "tests/support/userhome.h"
#include "text/numbers.h"

#include <QDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QTest>
#include <gtest/gtest.h>

const char kSmallCatalogue[] = R"(
    language; ES; Español; 1
    language; EN; Inglés; 2
    def; 0; T; ESColor#ENColour; ; blanco
    def; 1; B; ESNuevo#ENNew; ; 1
    def; 2; O; ESTalla#ENSize; ESPequeña#ENSmall|ESGrande#ENLarge; 1
    def; 3; I; Coste; ; 0
    def; 4; I; Notas
    product; 10001; A-1; 10.5; 0; Norte; 2024-01-01T10:00:00
    product; 10002; B-2; 2000; 1; Sur; 2024-01-02T10:00:00
    product; 10003; C-3; 30; 2; L'Eixample; 2024-01-03T10:00:00
    fields; 10001; rojo; 0; 0; 5; frágil
    fields; 10002; azul; 1; 1; 6; pesado
    fields; 10003; gris; 0; 0; 7; caro
    texts; Products; 10001; ES; Silla; De pino; Asientos
    texts; Products; 10001; EN; Chair; Pine; Seats
    texts; Products; 10002; ES; Mesa; De roble; Mesas
    texts; Products; 10003; ES; Banco; De haya; Asientos)";

namespace {

// With the flavour file of the agencies, or with none.
void ChooseTrade(Trade trade) {
    QTemporaryDir folder;
    if (trade == Trade::RealEstate) {
        WriteAgencyFlavour(folder.path());
    }
    LoadFlavour(folder.path() + u'/');
}

} // namespace

void StartScreens(const QString& folder, Trade trade) {
    UseNumberLocale(QLocale(QLocale::Spanish, QLocale::Spain));
    ChooseTrade(trade);
    SetStoreFolder(folder);
    SetUserLangs("ES|EN", "ES");
    SetUICurrentLang("ES");
    ResetProductList();
    new MainForm;
    ConnectMainScreen();
    QObject::connect(frmMain, &MainForm::Unload, frmMain, LeaveMainScreen);
    ApplyCaptions(frmMain);
    BuildMessages();
    ASSERT_EQ(OpenStore(), 0);
    LoadLanguages();
    ArrangeLangButtons(frmMain->fraLang, frmMain->optLang);
    frmMain->AddListColumn("ProductRef", "Ref.", 600, false);
    frmMain->AddListColumn("ShortDesc", "Descripción breve", 2325, false);
    frmMain->AddListColumn("PriceAmount", "Precio", 930, true);
    LoadFieldDefs();
    RefreshProductList();
    frmMain->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(frmMain));
}

void EndScreens() {
    CloseStore();
    delete frmMain;
    ResetProductList();
}

MemoryDisk::MemoryDisk() {
    constexpr char kMemoryFolder[] = "/dev/shm";
    if (QFileInfo(kMemoryFolder).isWritable()) {
        qputenv("TMPDIR", kMemoryFolder);
    }
}

TestProgram::TestProgram(const QString& rows, Trade trade) : catalogue(rows) {
    StartScreens(catalogue.Folder(), trade);
}

TestProgram::~TestProgram() {
    EndScreens();
}

void ReturnToWindow() {
    if (QApplication::activeModalWidget() == nullptr && !frmMain->isActiveWindow()) {
        frmMain->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(frmMain));
    }
}

void Type(QWidget* box, const QString& text) {
    ReturnToWindow();
    box->setFocus();
    QTest::keySequence(box, QKeySequence::SelectAll);
    if (text.isEmpty()) {
        QTest::keyClick(box, Qt::Key_Backspace);
    }
    TypeOn(box, text);
}

void TypeOn(QWidget* box, const QString& text) {
    for (const QChar character : text) {
        const auto key = static_cast<Qt::Key>(character.toUpper().unicode());
        QTest::sendKeyEvent(QTest::Click, box, key, QString(character), Qt::NoModifier);
    }
}

void PressKey(QWidget* box, int key) {
    ReturnToWindow();
    box->setFocus();
    QTest::keyClick(box, static_cast<Qt::Key>(key));
}

void Click(QWidget* control) {
    ReturnToWindow();
    QTest::mouseClick(control, Qt::LeftButton);
}

void ClickRow(int row) {
    ReturnToWindow();
    QTreeView* list = frmMain->lstProductList;
    const QRect cell = list->visualRect(list->model()->index(row, 0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cell.center());
}

void ClickHeader(int column) {
    const QHeaderView* header = frmMain->lstProductList->header();
    const QPoint middle(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                        header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, middle);
}

void ClickTool(const QString& key) {
    QAction* button = frmMain->Button(key);
    QWidget* shown = frmMain->tlbProducts->widgetForAction(button);
    if (shown != nullptr && shown->isVisible()) {
        QTest::mouseClick(shown, Qt::LeftButton);
    } else {
        button->trigger(); // beyond the window's width
    }
}

std::string StepLetters() {
    const auto key = [](const QLabel* label) {
        return label->pixmap(Qt::ReturnByValue).cacheKey();
    };
    const std::pair<const QLabel*, char> kPictures[] = {{frmMain->imgToDoStep, 't'},
                                                        {frmMain->imgCurrentStep, 'c'},
                                                        {frmMain->imgDoneStep, 'd'},
                                                        {frmMain->imgFailedStep, 'f'}};
    std::string letters;
    for (const QLabel* step : frmMain->imgStep) {
        for (const auto& [picture, letter] : kPictures) {
            if (!step->isHidden() && key(picture) == key(step)) {
                letters += letter;
            }
        }
    }
    return letters;
}

QString ListText() {
    QStringList rows;
    const ProductListModel& list = *frmMain->productList;
    for (int row = 0; row < list.RowCount(); ++row) {
        rows += list.Text(row, 0) + u';' + list.Text(row, 1) + u';' + list.Text(row, 2);
    }
    return rows.join(u'|');
}

QString References() {
    QStringList references;
    for (int row = 0; row < frmMain->productList->RowCount(); ++row) {
        references += frmMain->productList->Text(row, 0);
    }
    return references.join(u' ');
}

QString Stored(const QString& statement) {
    Recordset cursor;
    cursor.SetConnection(adcData[kCursorScratch].Connection());
    cursor.SetSource(statement);
    cursor.Open();
    QStringList rows;
    for (; cursor.HasRow(); cursor.MoveNext()) {
        QStringList fields;
        for (int column = 0; column < cursor.ColumnCount(); ++column) {
            fields += IsNull(cursor.Value(column)) ? QStringLiteral("NULL") : cursor.Text(column);
        }
        rows += fields.join(u';');
    }
    return rows.join(u'|');
}

QString FieldsOf(int product) {
    return Stored("SELECT FieldValue FROM ProductFields WHERE ProductId=" +
                  QString::number(product) + " ORDER BY FieldDefId");
}

QString TextsOf(int item, const QString& lang) {
    return Stored(QString("SELECT FieldValue FROM MultiLangFields WHERE ItemId='%1' AND "
                          "LangCode='%2' ORDER BY FieldDefId")
                      .arg(item)
                      .arg(lang));
}

QString StoreCheck() {
    Statement check(adcData[kCursorScratch].Connection()->Handle(), "PRAGMA integrity_check");
    return check.Step() ? CellText(check.Column(0)) : QStringLiteral("no answer");
}

void ChangeStore(const QString& statements) {
    adcData[kCursorScratch].Connection()->Execute(statements);
}

void Refuse(const QString& change) {
    ChangeStore("CREATE TRIGGER refusal BEFORE " + change +
                " BEGIN SELECT RAISE(ABORT, 'refused'); END");
}

void Permit() {
    ChangeStore("DROP TRIGGER refusal");
}

void WhenDialogOpens(const std::function<void()>& act) {
    constexpr int kLookAgain = 5; // milliseconds
    auto* clock = new QTimer(frmMain);
    QObject::connect(clock, &QTimer::timeout, frmMain, [clock, act] {
        const QPointer<QWidget> dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || !dialog->isVisible() || InputIsHeld()) {
            return;
        }
        clock->deleteLater();
        clock->stop();
        act();
        if (dialog != nullptr && dialog->isVisible()) {
            dialog->close();
        }
    });
    clock->start(kLookAgain);
}
