#include "forms/searchform.h"

#include "forms/look.h"

SearchForm* frmSearch = nullptr;

SearchForm::SearchForm(QWidget* parent) : Dialog(parent) {
    setupUi(this);
    frmSearch = this;
    DressForm(this);
}

SearchForm::~SearchForm() {
    frmSearch = nullptr;
}
