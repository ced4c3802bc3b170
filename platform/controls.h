// What all controls of a form have in common, whatever their class: a text, a caption and a tag.
#pragma once

#include <QString>

class QObject;
class QWidget;

// Content of a line edit, a text edit or a combo box; empty for anything else.
QString ControlText(const QWidget* control);

// Sets it; does nothing if it is there already, so that the caret stays.
void SetControlText(QWidget* control, const QString& text);

// A control's tag: one text that handlers keep with it; empty at start.
QString Tag(const QObject* control);
void SetTag(QObject* control, const QString& tag);

// A control's name without the index of its group: "cmdUpdateWeb" for cmdUpdateWeb_1.
QString GroupName(const QObject* control);

// Enables or disables what a long run must not be disturbed by: every control of the form, and
// every menu entry, whose name begins with cmd, txt, mnu, opt or chk, and the frames and boxes of
// the product, unless its group is `excluded`. Yields after each.
void EnableWhileBusy(const QString& excluded, bool enabled, QWidget* form);
