#include "forms/calcform.h"

#include "forms/look.h"

CalcForm* frmCalc = nullptr;

CalcForm::CalcForm(QWidget* parent) : Dialog(parent) {
    setupUi(this);
    frmCalc = this;
    SetEscapeButton(cmdClose);
    DressForm(this);
}

CalcForm::~CalcForm() {
    frmCalc = nullptr;
}
