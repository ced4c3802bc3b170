#include "forms/aboutform.h"

#include "forms/look.h"

#include <QPixmap>

AboutForm* frmAbout = nullptr;

AboutForm::AboutForm(QWidget* parent) : Dialog(parent) {
    setupUi(this);
    frmAbout = this;
    SetEscapeButton(cmdOK);
    DressForm(this);
    imgSplash->setPixmap(DrawPicture("splash", imgSplash->minimumSize(), devicePixelRatioF()));
}

AboutForm::~AboutForm() {
    frmAbout = nullptr;
}
