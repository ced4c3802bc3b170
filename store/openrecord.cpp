#include "store/openrecord.h"

#include "forms/mainform.h"

#include <array>

namespace {

std::array<bool, 3> failedSaves{}; // by SavedPart

bool& Failed(SavedPart part) {
    return failedSaves.at(static_cast<std::size_t>(part));
}

} // namespace

bool ProductIsReadOnly() {
    return !frmMain->fraReadOnly->isHidden();
}

void SetProductReadOnly(bool readOnly) {
    frmMain->fraReadOnly->setVisible(readOnly);
}

bool LastSaveFailed(SavedPart part) {
    return Failed(part);
}

void ForgetFailedSave(SavedPart part) {
    Failed(part) = false;
}

SaveUnderWay::SaveUnderWay(SavedPart saved) : part(saved) {
    Failed(part) = true;
}

void SaveUnderWay::Written() {
    ForgetFailedSave(part);
}
