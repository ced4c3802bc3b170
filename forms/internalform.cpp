#include "forms/internalform.h"

#include "forms/groups.h"
#include "forms/look.h"

InternalForm* frmInternal = nullptr;

InternalForm::InternalForm(QWidget* parent) : Dialog(parent) {
    setupUi(this);
    frmInternal = this;
    txtFields = GatherGroup<QLineEdit>(this, "txtFields");
    lblFields = GatherGroup<QLabel>(this, "lblFields");
    SetEscapeButton(cmdUndo);
    DressForm(this);
}

InternalForm::~InternalForm() {
    frmInternal = nullptr;
}
