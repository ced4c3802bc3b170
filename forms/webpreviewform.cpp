#include "forms/webpreviewform.h"

#include "forms/look.h"

WebPreviewForm* frmWebPreview = nullptr;

WebPreviewForm::WebPreviewForm(QWidget* parent) : Dialog(parent) {
    setupUi(this);
    frmWebPreview = this;
    DressForm(this);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
}

WebPreviewForm::~WebPreviewForm() {
    frmWebPreview = nullptr;
}
