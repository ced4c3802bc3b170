// The record on screen: whether it may be written at all, and whether the store holds what was last
// saved of it. Both are asked here alone.
#pragma once

// Another user holds the product on screen: it can be looked at, every save is off. The notice of
// the main form is where this stands, so that what the user reads is what the program does.
bool ProductIsReadOnly();
void SetProductReadOnly(bool readOnly);

// What is saved by itself.
enum class SavedPart { Product, Texts, Picture };

// The last save of the part failed half way: the cursors hold what the boxes hold, but the store
// doesn't, so that a comparison would find nothing to save. The next save then writes it whatever
// the comparison says.
bool LastSaveFailed(SavedPart part);

// Another record is on screen, or this one as the store has it.
void ForgetFailedSave(SavedPart part);

// One save: it counts as failed from here until Written is called, so also where it is left by an
// exception.
class SaveUnderWay {
public:
    explicit SaveUnderWay(SavedPart saved);
    void Written();

private:
    SavedPart part;
};
