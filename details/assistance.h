// The assistance panel: beside an empty text, the same text in another language, to translate from
// or to take over.
#pragma once

#include "store/langvalues.h"

#include <QString>
#include <vector>

class ControlEvents;
class QFrame;
class QLabel;
class QToolButton;
class QWidget;

// The panel of one screen with the boxes that it belongs to.
struct AssistPanel {
    QFrame* fraLangAssist;
    QLabel* lblToTranslate;
    std::vector<QToolButton*> lblLangScroll;
    std::vector<QWidget*> boxes; // txtMLFields of the screen
    TextTable table;             // of the texts
};

// Connects the panel of a screen. `itemId` gives the ItemId of the open item when it is asked.
void ConnectAssistance(const AssistPanel& panel, ControlEvents* events, QString (*itemId)());

// Shows the panel beside box `index` if that text exists in another language; the tag of the panel
// keeps the index.
void ShowLangAssist(const AssistPanel& panel, const QString& itemId, int index);

// Takes the panel of a form away, if it is there.
void LeaveAssistance(QWidget* form);
