#include "forms/ftploginform.h"

#include "forms/look.h"

FTPLoginForm* frmFTPLogin = nullptr;

FTPLoginForm::FTPLoginForm(QWidget* parent) : Dialog(parent) {
    setupUi(this);
    frmFTPLogin = this;
    SetEscapeButton(cmCancel);
    DressForm(this);
}

FTPLoginForm::~FTPLoginForm() {
    frmFTPLogin = nullptr;
}
