// What the three multilingual screens share: the row of language buttons. Owns LangButtonsReady.
#pragma once

#include <QString>
#include <vector>

class QToolButton;
class QWidget;

// False while buttons are being arranged: setting a button's value fires its click. True at start.
extern bool LangButtonsReady;

// Lays out a screen's buttons by UserLangs: tag, flag and tip by code, the one of UICurrentLang
// down, the rest hidden. With one language the whole frame is hidden.
void ArrangeLangButtons(QWidget* fraLang, const std::vector<QToolButton*>& optLang);

// Connects the main form's language buttons: what was typed is saved, then the texts of the new
// language appear.
void ConnectLangButtons();

// After a dialog that edits texts: the editor's language is `lang` again, and its texts are read
// anew.
void ReturnToLanguage(const QString& lang);
