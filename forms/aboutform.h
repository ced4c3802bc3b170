// What program and which version this is. Owns frmAbout.
#pragma once

#include "ui_aboutform.h"

#include "forms/dialog.h"

class AboutForm : public Dialog, public Ui::AboutForm {
    Q_OBJECT

public:
    explicit AboutForm(QWidget* parent);
    ~AboutForm() override;
};

// The open dialog, or null: set by its constructor, cleared by its destructor.
extern AboutForm* frmAbout;
