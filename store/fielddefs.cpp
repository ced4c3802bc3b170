#include "store/fielddefs.h"

#include "core/flavour.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "platform/events.h"
#include "store/store.h"
#include "store/taggedtext.h"

int FirstHiddenField = 0;
int MaxFieldDefId = 0;

namespace {

// %1 is a condition of fieldtypes.h.
constexpr char kCountStatement[] = "SELECT count(*) FROM ProductFieldDef WHERE %1";
constexpr char kFieldDefsStatement[] = "SELECT * FROM ProductFieldDef ORDER BY FieldDefId";

// The form itself is always labelled in Spanish, whatever language is being edited.
constexpr char kFormLanguage[] = "ES";

int SlotCount() {
    return static_cast<int>(frmMain->txtFields.size());
}

// Slots with a label and a frame; internal slots are bare text boxes beyond them.
int DressedSlotCount() {
    return static_cast<int>(frmMain->lblFields.size());
}

void ShowSlotAs(int slot, QWidget* control) {
    frmMain->txtFields[slot]->setVisible(control == frmMain->txtFields[slot]);
    frmMain->shpFields[slot]->setVisible(control == frmMain->txtFields[slot]);
    frmMain->chkFields[slot]->setVisible(control == frmMain->chkFields[slot]);
    frmMain->cboFields[slot]->setVisible(control == frmMain->cboFields[slot]);
}

void FillChoices(int slot, const QString& choices) {
    QComboBox* combo = frmMain->cboFields[slot];
    combo->clear();
    if (choices.isEmpty()) {
        return;
    }
    const auto count = choices.count(u'|') + 1;
    for (int choice = 0; choice < count; ++choice) {
        combo->addItem(TaggedText(choices, kFormLanguage, choice));
    }
}

void DressPublicSlot(int slot, const Recordset& row) {
    switch (FieldTypeOf(row.Text(u"Type"))) {
    case FieldType::YesNo:
        ShowSlotAs(slot, frmMain->chkFields[slot]);
        break;
    case FieldType::Options:
        ShowSlotAs(slot, frmMain->cboFields[slot]);
        FillChoices(slot, row.Text(u"Choices"));
        break;
    case FieldType::Text:
    case FieldType::Internal: // before public ones in a catalogue: their slot is one of the first
        ShowSlotAs(slot, frmMain->txtFields[slot]);
        break;
    }
    const QString caption = TaggedText(row.Text(u"Caption"), kFormLanguage, 0);
    const QString tip = row.Text(u"ToolTipText");
    frmMain->lblFields[slot]->setText(caption + ":");
    frmMain->shpFields[slot]->setEnabled(true);
    for (QWidget* control : {static_cast<QWidget*>(frmMain->lblFields[slot]),
                             static_cast<QWidget*>(frmMain->txtFields[slot]),
                             static_cast<QWidget*>(frmMain->chkFields[slot]),
                             static_cast<QWidget*>(frmMain->cboFields[slot])}) {
        control->setToolTip(tip);
        control->setAccessibleName(caption);
        control->setEnabled(true);
    }
}

void CloseSlot(int slot) {
    frmMain->txtFields[slot]->setEnabled(false);
    if (slot < DressedSlotCount()) {
        ShowSlotAs(slot, frmMain->txtFields[slot]);
        frmMain->lblFields[slot]->setText("No usado");
        frmMain->lblFields[slot]->setEnabled(false);
        frmMain->shpFields[slot]->setEnabled(false);
    }
}

// Returns the number of rows.
int DressSlots() {
    RunQuery(kCursorScratch, kFieldDefsStatement);
    Recordset& rows = adcData[kCursorScratch];
    int slot = 0;
    for (; rows.HasRow(); rows.MoveNext(), ++slot) {
        while (slot >= SlotCount()) {
            frmMain->AddHiddenField();
        }
        if (slot < FirstHiddenField && slot < DressedSlotCount()) {
            DressPublicSlot(slot, rows);
        } else {
            frmMain->txtFields[slot]->hide();
        }
        SetTag(frmMain->txtFields[slot], rows.Text(u"Type") + "|" + rows.Text(u"DefaultValue"));
        MaxFieldDefId = std::max(MaxFieldDefId, static_cast<int>(rows.Integer(u"FieldDefId")));
        DoEvents();
    }
    return slot;
}

void ShowFlavourCommands() {
    // Strictly greater: a catalogue with just one internal field keeps the button hidden.
    const bool internalData = !IsGenericFlavour() && MaxFieldDefId > FirstHiddenField;
    frmMain->cmdInternalData->setVisible(internalData);
    frmMain->mnuActionsC[kEntryInternalData]->setVisible(internalData);

    const bool loans = AppBrand == u"ZAND" && (AppSector == u"INMO" || AppSector == u"AUTO");
    frmMain->Button(kButtonLoanCalc)->setVisible(loans);
    frmMain->mnuActionsC[kEntryLoanCalc]->setVisible(loans);
}

} // namespace

void LoadFieldDefs() {
    CountPublicFields();
    MaxFieldDefId = 0;

    const int rows = DressSlots();
    if (rows == 0) {
        return;
    }
    for (int slot = rows; slot < SlotCount(); ++slot) {
        CloseSlot(slot);
    }
    ShowFlavourCommands();
}

void CountPublicFields() {
    RunQuery(kCursorScratch, QString(kCountStatement).replace("%1", kPublicFields));
    FirstHiddenField = static_cast<int>(CellInteger(adcData[kCursorScratch].Value(0)));
}

void DisableUnusedFields() {
    for (int slot = MaxFieldDefId + 1; slot < SlotCount(); ++slot) {
        frmMain->txtFields[slot]->setEnabled(false);
    }
}

FieldType SlotType(int slot) {
    return FieldTypeOf(Tag(frmMain->txtFields[slot]).section(u'|', 0, 0));
}

QString SlotDefault(int slot) {
    return Tag(frmMain->txtFields[slot]).section(u'|', 1, 1);
}
