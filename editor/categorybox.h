// The category box with its suggestions: values already in use, those used most first. In the
// generic trade it is the multilingual box, in the others the zone box; both are always connected.
#pragma once

#include <QString>

class QWidget;

bool IsCategoryBox(const QWidget* control);

// Fills the suggestions for what the box will hold after a key; `key` is a Qt::Key and `character`
// what it types.
void ZoneSuggest(int key, const QString& character);

// Hides the suggestions; `giveFocus` puts focus and caret back into the box.
void ZoneHide(bool giveFocus);

void ConnectCategoryBox();
