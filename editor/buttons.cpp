#include "editor/buttons.h"

#include "editor/listrows.h"
#include "forms/mainform.h"
#include "store/products.h"

void RefreshButtons() {
    const bool has = ListRowCount() > 0;
    QAction* search = frmMain->Button("Search");
    frmMain->Button("Add")->setEnabled(true);
    frmMain->Button("Del")->setEnabled(has && !ProductIsReadOnly());
    for (const char* key : {"Preview", "Layout", "Report"}) {
        frmMain->Button(key)->setEnabled(has);
    }
    search->setEnabled(has || search->isChecked());
    frmMain->fraDetail->setEnabled(has);
    for (std::size_t entry = 1; entry < frmMain->mnuActionsC.size(); ++entry) {
        frmMain->mnuActionsC[entry]->setEnabled(has);
    }
}
