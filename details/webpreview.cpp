#include "details/webpreview.h"

#include "core/addresses.h"
#include "forms/mainform.h"
#include "forms/webpreviewform.h"
#include "platform/browser.h"
#include "platform/dialogs.h"
#include "platform/shell.h"

void ShowWebPreview(const QString& path) {
    if (IsUnattended()) {
        return;
    }
    WebPreviewForm form(frmMain);
    form.setWindowIcon(frmMain->windowIcon());
    QWidget* view = MakeBrowserView(form.wbPreview);
    if (view == nullptr) {
        OpenWithSystem(path);
        return;
    }
    form.wbPreview->layout()->addWidget(view);
    QObject::connect(view, &QWidget::windowTitleChanged, &form, &QWidget::setWindowTitle);
    QObject::connect(form.lblLink, &QAbstractButton::clicked, &form, [] {
        if (!Maker.homePage.isEmpty()) {
            OpenWithSystem(Maker.homePage);
        }
    });
    BrowseTo(view, path);
    form.exec();
}
