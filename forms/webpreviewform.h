// The finished site in a window; wbPreview is an empty place for the browser, with a layout. Owns
// frmWebPreview.
#pragma once

#include "ui_webpreviewform.h"

#include "forms/dialog.h"

class WebPreviewForm : public Dialog, public Ui::WebPreviewForm {
    Q_OBJECT

public:
    explicit WebPreviewForm(QWidget* parent);
    ~WebPreviewForm() override;
};

// The open dialog, or null: set by its constructor, cleared by its destructor.
extern WebPreviewForm* frmWebPreview;
