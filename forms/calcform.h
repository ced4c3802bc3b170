// The mortgage calculator. Owns frmCalc.
#pragma once

#include "ui_calcform.h"

#include "forms/dialog.h"

class CalcForm : public Dialog, public Ui::CalcForm {
    Q_OBJECT

public:
    explicit CalcForm(QWidget* parent);
    ~CalcForm() override;
};

// The open dialog, or null: set by its constructor, cleared by its destructor.
extern CalcForm* frmCalc;
