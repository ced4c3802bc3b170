// The question for user and password of an FTP account. Owns frmFTPLogin.
#pragma once

#include "ui_ftploginform.h"

#include "forms/dialog.h"

class FTPLoginForm : public Dialog, public Ui::FTPLoginForm {
    Q_OBJECT

public:
    explicit FTPLoginForm(QWidget* parent);
    ~FTPLoginForm() override;
};

// The open dialog, or null: set by its constructor, cleared by its destructor.
extern FTPLoginForm* frmFTPLogin;
