// What the screens with texts in several languages share on their surface: the language buttons and
// the panel that shows a text of another language.
#pragma once

#include <QLabel>
#include <QToolButton>
#include <vector>

// A language button shows a flag alone: from now on its tool tip, the language's name, is its
// accessible name as well.
void FollowTips(const std::vector<QToolButton*>& buttons);

// Keeps `text` as wide as the panel that it scrolls in and as high as its text needs. The panel has
// no layout: the text is moved up and down inside it.
void KeepTextWidth(QWidget* panel, QLabel* text);
