// The common look of all forms: the light style sheet, icons in the ink of the palette, titles a
// little larger than the desktop's font. What a control is comes from its dynamic properties in the
// .ui file: "ink" names its icon, "role" and "card" its place in the style sheet.
#pragma once

#include <QIcon>

class QPixmap;
class QWidget;

// Icon `name` of our family, drawn in the palette's text colour of the moment, so that it follows a
// change from light to dark. Null if there is none of that name.
QIcon InkIcon(const QString& name);

// Flag of a language by its two-letter code; null if there is none.
QIcon FlagIcon(const QString& code);

// Picture `name` of ours in `size` at `ratio` device pixels each; null if there is none.
QPixmap DrawPicture(const QString& name, QSize size, qreal ratio);

// Dresses a form that was just set up: style sheet, icons, fonts.
void DressForm(QWidget* form);

// Sets a property that the style sheet asks for, and shows the difference.
void SetLookFlag(QWidget* control, const char* flag, bool value);
