// Choice lists: for each option list that a template asks for, the choices that products really
// use. Owns ChoiceBlocks.
#pragma once

#include "store/snapshot.h"

#include <QByteArray>
#include <QString>
#include <vector>

struct ChoiceBlock {
    QByteArray TagName; // replaced by Text in every text file of the language
    QByteArray Text;
    QString Lang;
};

// Choice lists, then category trees, in the order in which they are replaced.
extern std::vector<ChoiceBlock> ChoiceBlocks;

// At the beginning of a generation.
void ResetChoices();

struct ChoiceItem {
    QString Value; // as stored
    QString Text;  // as shown; empty when the definition has no such choice
};

// The values of field `fieldId` that occur, each once, in the order of first occurrence. A
// StoreError when `fieldId` is no number.
void LoadChoiceItems(SiteSnapshot& snapshot, const QString& fieldId, const QString& lang,
                     std::vector<ChoiceItem>& items);

// Empties ChoiceBlocks and makes one for each section of kind 23 and each language.
void BuildChoiceLists(SiteSnapshot& snapshot);

// Appends a block, for the rooms that make others.
void AddChoiceBlock(ChoiceBlock block);
