#include "forms/apploginform.h"

#include "forms/look.h"

AppLoginForm* frmAppLogin = nullptr;

AppLoginForm::AppLoginForm(QWidget* parent) : Dialog(parent) {
    setupUi(this);
    frmAppLogin = this;
    SetEscapeButton(cmCancel);
    DressForm(this);
}

AppLoginForm::~AppLoginForm() {
    frmAppLogin = nullptr;
}
