// The first edit after a save that did not leave the product: the product is still on screen, but
// its row is no longer held.
#pragma once

class QWidget;

// To be called by every handler of an edit, before anything else. If the row of the product on
// screen is parked, it is taken again and the boxes show it as it stands now, but for what was just
// typed in `edited`. If another user has it, the read-only notice appears; if it is gone, the user
// is told and the list moves on. Costs nothing otherwise.
void ProductEdited(QWidget* edited);
