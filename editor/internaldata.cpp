#include "editor/internaldata.h"

#include "editor/editing.h"
#include "forms/internalform.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "store/fielddefs.h"
#include "store/store.h"

namespace {

// %1 is a condition of fieldtypes.h.
constexpr char kDefsStatement[] = "SELECT * FROM ProductFieldDef WHERE %1 ORDER BY FieldDefId";

void DressSlots(InternalForm& form) {
    RunQuery(kCursorScratch, QString(kDefsStatement).replace("%1", kInternalFields));
    Recordset& rows = adcData[kCursorScratch];
    for (std::size_t i = 0; i < form.txtFields.size() && rows.HasRow(); ++i, rows.MoveNext()) {
        const QString tip = rows.Text(u"ToolTipText");
        form.lblFields[i]->setText(rows.Text(u"Caption") + ":");
        form.lblFields[i]->setToolTip(tip);
        form.txtFields[i]->setToolTip(tip);
        form.txtFields[i]->setAccessibleName(rows.Text(u"Caption"));
    }
}

// Calls `copy` for each pair of a box of the dialog and its hidden slot.
template <class Copy> void ForEachPair(InternalForm& form, Copy copy) {
    for (std::size_t i = 0; i < form.txtFields.size(); ++i) {
        const std::size_t slot = FirstHiddenField + i;
        if (slot < frmMain->txtFields.size()) {
            copy(form.txtFields[i], frmMain->txtFields[slot]);
        }
    }
}

void KeepData(InternalForm& form) {
    ForEachPair(form, [](const QLineEdit* box, QLineEdit* slot) {
        if (slot->text() != box->text()) {
            ProductEdited(slot);
            slot->setText(box->text());
        }
    });
    form.accept();
}

} // namespace

void ShowInternalData() {
    InternalForm form(frmMain);
    form.lblTitle->setText("Información Interna (Ref. " + frmMain->txtProductRef->text() + " - " +
                           ControlText(frmMain->txtMLFields[kTextTitle]) + ")");
    DressSlots(form);
    ForEachPair(form, [](QLineEdit* box, const QLineEdit* slot) { box->setText(slot->text()); });
    QObject::connect(form.cmdClose, &QPushButton::clicked, &form, [&form] { KeepData(form); });
    QObject::connect(form.cmdUndo, &QPushButton::clicked, &form, &QDialog::reject);
    form.exec();
}
