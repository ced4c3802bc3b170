#include "app/sheet.h"

#include "core/settings.h"
#include "core/vocabulary.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "platform/dialogs.h"
#include "platform/shell.h"
#include "publish/generate.h"
#include "store/products.h"
#include "store/snapshot.h"

namespace {

constexpr char kNeedsBrowser[] =
    "Asegúrese que tiene Internet Explorer 4.0 o superior instalado en el sistema.";
constexpr char kNeedsMail[] =
    "Asegúrese que tiene algún cliente de correo electrónico (por ejemplo "
    "Outlook) instalado en el sistema.";

void Show(const QString& page) {
    if (!OpenWithSystem(page)) {
        MsgBox(QString("No es posible mostrar la Vista Previa. ") + kNeedsBrowser, BoxIcon::Warning,
               Messages[kMessagePreviewTitle]);
    }
}

void Print(const QString& page) {
    if (!PrintWithSystem(page)) {
        MsgBox(Messages[kMessagePrint] + ". " + kNeedsBrowser, BoxIcon::Warning,
               Messages[kMessagePrintTitle]);
    }
}

// Not quite as RFC 6068 has it: a "&" in front, quotes around the texts. Mended, the user's mails
// would have other subjects than those that customers' answers and mail filters go by.
void Mail(const QString& page) {
    const QString link = "mailto:&Subject='" + Messages[kMessageMailSubject] + ": " +
                         ControlText(frmMain->txtMLFields[kTextTitle]) +
                         "'&Body='(Escriba aquí su comentario, oferta, saludo, etc)'";
    if (page.isEmpty() || !OpenWithSystem(link)) {
        MsgBox(Messages[kMessageMail] + ". " + kNeedsMail, BoxIcon::Warning,
               Messages[kMessageMailTitle]);
    }
}

// Path of the page; empty where it could not be made, or there is none.
QString PageOf(SheetKind kind, const QString& productId, SiteSnapshot& snapshot) {
    switch (kind) {
    case SheetKind::Product:
        return GeneratePreviewPage({PreviewPage::Product, productId}, TemplPath, snapshot);
    case SheetKind::Layout:
        return GeneratePreviewPage({PreviewPage::Layout, productId}, TemplPath, snapshot);
    case SheetKind::Report:
        break;
    }
    return {};
}

} // namespace

void ShowSheet(SheetKind kind, const QString& productId, SheetAction action) {
    if (kind != SheetKind::Report) {
        SaveCurrentProduct();
    }
    SiteSnapshot snapshot;
    TakeSiteSnapshot(snapshot);
    const QString page = PageOf(kind, productId, snapshot);
    DropSiteSnapshot(snapshot);
    switch (action) {
    case SheetAction::Show:
        Show(page);
        break;
    case SheetAction::Print:
        Print(page);
        break;
    case SheetAction::Mail:
        Mail(page);
        break;
    }
}
