// Tool bars that can be used without a mouse.
#pragma once

class QToolBar;
class QWidget;

// Makes the buttons of `bar` tab stops between `before` (may be null) and `after`. A click on a
// button leaves the focus where it is, in the box being edited.
void MakeButtonsReachable(QToolBar* bar, QWidget* before, QWidget* after);
