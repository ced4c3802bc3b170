// The internal data of the open product, which never reach the web. Owns frmInternal.
#pragma once

#include "ui_internalform.h"

#include "forms/dialog.h"

#include <vector>

class InternalForm : public Dialog, public Ui::InternalForm {
    Q_OBJECT

public:
    explicit InternalForm(QWidget* parent);
    ~InternalForm() override;

    // Groups, by index.
    std::vector<QLineEdit*> txtFields;
    std::vector<QLabel*> lblFields;
};

// The open dialog, or null: set by its constructor, cleared by its destructor.
extern InternalForm* frmInternal;
