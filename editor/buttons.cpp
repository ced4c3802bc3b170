#include "editor/buttons.h"

#include "editor/listrows.h"
#include "forms/mainform.h"
#include "store/openrecord.h"

void RefreshButtons() {
    const bool has = ListRowCount() > 0;
    QAction* search = frmMain->Button(kButtonSearch);
    frmMain->Button(kButtonAdd)->setEnabled(true);
    frmMain->Button(kButtonDel)->setEnabled(has && !ProductIsReadOnly());
    for (const auto key : {kButtonPreview, kButtonLayout, kButtonReport}) {
        frmMain->Button(key)->setEnabled(has);
    }
    search->setEnabled(has || search->isChecked());
    frmMain->fraDetail->setEnabled(has);
    for (std::size_t entry = kEntryDel; entry < frmMain->mnuActionsC.size(); ++entry) {
        frmMain->mnuActionsC[entry]->setEnabled(has);
    }
}
