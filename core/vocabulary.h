// The nouns of the trade in every text: placeholders such as %PRODSING% are expanded from the
// flavour when a form or a message is about to appear. Owns Messages.
#pragma once

#include <QString>
#include <array>

class QWidget;

inline constexpr int kMessageCount = 18;

// Expanded message templates, by the index that their users know; "%1" is left for the caller.
// Built once at start by BuildMessages, only read after.
extern std::array<QString, kMessageCount> Messages;

// Expands the placeholders of `text` in place; the result is the same text with its first character
// in upper case.
QString ExpandVocabulary(QString& text);

// Rewrites captions and tool tips of all controls of a form. A label's tool tip keeps its
// placeholders: its expansion is thrown away. On frmMain the category label and tip follow, on
// frmCorpInfo the logo box.
void ApplyCaptions(QWidget* form);

void BuildMessages();
