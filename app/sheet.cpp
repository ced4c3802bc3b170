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

enum SheetAction { kShow = 0, kPrint = 1, kMail = 2 };

constexpr int kMessagePreviewTitle = 8;
constexpr int kMessagePrint = 9;
constexpr int kMessagePrintTitle = 10;
constexpr int kMessageSubject = 11;
constexpr int kMessageMail = 12;
constexpr int kMessageMailTitle = 13;

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

// The link's form is old and not quite right; the mail programs that users have set up know it so.
void Mail(const QString& page) {
    const QString link = "mailto:&Subject='" + Messages[kMessageSubject] + ": " +
                         ControlText(frmMain->txtMLFields[0]) +
                         "'&Body='(Escriba aquí su comentario, oferta, saludo, etc)'";
    if (page.isEmpty() || !OpenWithSystem(link)) {
        MsgBox(Messages[kMessageMail] + ". " + kNeedsMail, BoxIcon::Warning,
               Messages[kMessageMailTitle]);
    }
}

// The path of the product's page of that kind; empty where it could not be made, or there is none.
QString PageOf(const QString& kind, const QString& productId, SiteSnapshot& snapshot) {
    if (kind == u"PRODUCT") {
        return GeneratePreviewPage({PreviewPage::Product, productId}, TemplPath, snapshot);
    }
    if (kind == u"LAYOUT") {
        return GeneratePreviewPage({PreviewPage::Layout, productId}, TemplPath, snapshot);
    }
    return {};
}

} // namespace

void ShowSheet(const QString& spec, int action) {
    const QString kind = spec.section(u'|', 0, 0);
    if (kind == u"PRODUCT" || kind == u"LAYOUT") {
        SaveCurrentProduct();
    }
    SiteSnapshot snapshot;
    TakeSiteSnapshot(snapshot);
    const QString page = PageOf(kind, spec.section(u'|', 1, 1), snapshot);
    DropSiteSnapshot(snapshot);
    switch (action) {
    case kPrint:
        Print(page);
        break;
    case kMail:
        Mail(page);
        break;
    default:
        Show(page);
        break;
    }
}
