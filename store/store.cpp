#include "store/store.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "engine/storeengine.h"
#include "forms/mainform.h"
#include "forms/picturesform.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/process.h"
#include "store/maintenance.h"
#include "text/dates.h"

std::array<Recordset, kCursorCount + 1> adcData;
bool StoreOpen = false;

namespace {

// Reading it is the real test that the file and its tables are there.
constexpr char kFieldDefsStatement[] = "SELECT * FROM ProductFieldDef ORDER BY FieldDefId";

// A file that lacks one of these is another program's. "%1" is the table.
constexpr char kTableStatement[] = "SELECT * FROM %1 WHERE 1 = 2";
constexpr const char* kOtherTables[] = {"Products",         "ProductFields", "Pictures",
                                        "MultiLangFields",  "Languages",     "CorpInfo",
                                        "MultiLangFieldDef"};

void OpenCursors() {
    FinishCompaction(DBpath + DBname);
    const auto connection = StoreConnection::Open(DBpath + DBname);
    for (int index = 1; index <= kCursorCount; ++index) {
        adcData[index] = Recordset();
        adcData[index].SetConnection(connection);
        adcData[index].SetPessimistic(index == kCursorProduct);
        DoEvents();
    }
    for (const char* table : kOtherTables) {
        RunQuery(kCursorScratch, QString(kTableStatement).replace("%1", table));
    }
    RunQuery(kCursorScratch, kFieldDefsStatement);
}

BoxAnswer AskAboutFailure() {
    const QString text =
        QStringLiteral(
            "No se ha podido abrir la Base de Datos.\n"
            "Asegúrese que el fichero %1 existe y que tiene acceso al mismo.\n\n"
            "Pulse Sí para comprobar en Configuración dónde se encuentra la Base de Datos.\n"
            "Pulse No para salir del programa.")
            .arg(DBpath + DBname);
    return MsgBox(text, BoxIcon::Critical, BoxButtons::YesNo, BoxAnswer::Yes, AppName);
}

} // namespace

int OpenStore() {
    try {
        OpenCursors();
        StoreOpen = true;
        return 0;
    } catch (const StoreError&) {
        if (AskAboutFailure() != BoxAnswer::Yes) {
            EndProcess(EXIT_FAILURE);
        }
    }
    CloseStore();
    return 1;
}

void CloseStore() {
    for (Recordset& cursor : adcData) {
        cursor = Recordset();
    }
    StoreOpen = false;
}

void RunQuery(int index, const QString& statement) {
    adcData[index].SetSource(statement);
    adcData[index].Open();
    WaitForCursor(adcData[index]);
}

void ParkCursor(int index) {
    RunQuery(index, kParkStatement);
}

void WaitForCursor(const Recordset& cursor) {
    while (cursor.HasRow() && !cursor.IsSettled()) {
        DoEvents();
    }
}

void TouchLastUpdate(Touched what) {
    const QString now = DateText(Now());
    if (what != Touched::Picture) {
        frmMain->txtLastUpdate->setText(now);
    }
    if (what != Touched::Product && frmPictures != nullptr) {
        frmPictures->txtLastUpdate->setText(now);
    }
}

bool SaveBeforeEnd(void (*save)()) {
    try {
        save();
        return true;
    } catch (const StoreError& error) {
        return MsgBox("No se han podido guardar los últimos cambios: " + error.Text() +
                          "\n\n¿Desea salir sin guardarlos?",
                      BoxIcon::Warning, BoxButtons::YesNo, BoxAnswer::No,
                      AppName) == BoxAnswer::Yes;
    }
}
