// Category trees: a navigation of two levels made from the values of a text per language, which the
// user writes as "Category/Subcategory". The trees go to ChoiceBlocks.
#pragma once

#include "store/snapshot.h"

#include <QByteArray>
#include <QString>
#include <vector>

// The code by which pages and scripts refer to a category: the mean distance of the characters from
// "A", cut to a whole number, and their count, both in upper-case hexadecimal (a negative mean as
// 32-bit two's complement). Different texts may share a code. `ansi` is Windows-1252.
QByteArray CategoryHash(QByteArrayView ansi);

struct Subcategory {
    QByteArray Code; // of the whole value
    QString Name;
};

struct Category {
    QByteArray Code;
    QString Name;
    std::vector<Subcategory> Subcategories;
};

struct CategoryTree {
    QString Lang;
    std::vector<Category> Categories; // by code units, ascending
};

// The tree of each language in WebLangs, from the text that the section's FIELDDEFID names as
// table "." number; a name that no text has gives trees without categories.
std::vector<CategoryTree> BuildCategoryItems(SiteSnapshot& snapshot, int section);

// A block for each section of kind 27 and each language.
void BuildCategoryTrees(SiteSnapshot& snapshot);
