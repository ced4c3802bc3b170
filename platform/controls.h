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
