// The last pass over a generation: resolves what belongs to the whole site in every text file.
#pragma once

#include "store/snapshot.h"

// Goes through OutputFiles once, in place: every page, script and style sheet gets the comment of
// the program, colours, zones, company data and, in files of a language, its blocks, captions and
// words; names get their language; every file, text or not, gets its hash. Stops early when
// AbortPublish is set, which leaves the files behind as they were. After all other passes, since it
// decides what is expanded inside what.
void FinishSite(SiteSnapshot& snapshot);
