// The two blocks of products that stand first on the home page. Owns EmphasisBlock1 and
// EmphasisBlock2.
#pragma once

#include "store/snapshot.h"

#include <QByteArray>
#include <QString>
#include <vector>

struct EmphasisBlock {
    QByteArray TagName; // empty where the block could not be made: nothing is replaced then
    QByteArray Text;
    QString Lang;
};

// From the sections of kinds 6 and 7: one element for each of WebLangs, in that order.
extern std::vector<EmphasisBlock> EmphasisBlock1;
extern std::vector<EmphasisBlock> EmphasisBlock2;

// At the beginning of a generation.
void ResetEmphasis();

// Fills the first block with the first products of the snapshot, as many as MaxEmph1 of the
// template's header, the second with those that follow, until both together hold MaxEmph1 +
// MaxEmph2 modulo 256. Whether a product is featured isn't looked at: featured ones come first, and
// others fill what is left. The first section that is missing ends the whole pass, on purpose:
// designs with one of the two kinds rely on what stands then.
void BuildEmphasisBlocks(SiteSnapshot& snapshot);
