// The search dialog: zones, words and price limits for the list. Owns frmSearch.
#pragma once

#include "ui_searchform.h"

#include "forms/dialog.h"

class SearchForm : public Dialog, public Ui::SearchForm {
    Q_OBJECT

public:
    explicit SearchForm(QWidget* parent);
    ~SearchForm() override;
};

// The open dialog, or null: set by its constructor, cleared by its destructor.
extern SearchForm* frmSearch;
