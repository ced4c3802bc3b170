// The rules of the house, checked on its sources: each folder stands on the floors above its own in
// the README's table, and no two rooms include each other.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

// Floor of each folder (without "/") in the table of a README: rows "| floor | `folder/` | ... |".
QMap<QString, int> ReadFloors(const QString& readme);

// Texts by path from the top folder: sources ("editor/search.cpp") and each folder's
// CMakeLists.txt.
using SourceTexts = QMap<QString, QString>;

// What breaks the rules, a line each, naming file and line of every include (or library) concerned;
// empty for a sound house:
// - a folder with sources that the table lacks, and a row whose folder has none;
// - an include, or a library that is linked to, of a folder on the same or a later floor; where
// that
//   one includes the first too, its line is named beside it;
// - rooms (a .h and .cpp pair) of a folder that include each other, straight or round a corner, and
//   what leads from one such circle to another.
QStringList FindHouseFaults(const QMap<QString, int>& floors, const SourceTexts& texts);
