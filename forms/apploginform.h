// The question for the application's password. Owns frmAppLogin.
#pragma once

#include "ui_apploginform.h"

#include "forms/dialog.h"

class AppLoginForm : public Dialog, public Ui::AppLoginForm {
    Q_OBJECT

public:
    explicit AppLoginForm(QWidget* parent);
    ~AppLoginForm() override;
};

// The open dialog, or null: set by its constructor, cleared by its destructor.
extern AppLoginForm* frmAppLogin;
