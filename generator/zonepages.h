// A listing page for each marked zone and language. Nothing marks a zone at present, so that no
// page is made; the sections stay a part of the template format. Owns ZonePageBlock.
#pragma once

#include "store/snapshot.h"

#include <QByteArray>
#include <QString>
#include <vector>

struct ZonePageBlockRecord {
    QByteArray TagName;
    QByteArray Text;
    QString Lang;
};

// One for each marked record of ZoneLangList, in its order.
extern std::vector<ZonePageBlockRecord> ZonePageBlock;

// At the beginning of a generation.
void ResetZonePages();

// Fills ZonePageBlock from the section of kind 24 and adds a page in the frame of kind 25 for each
// marked zone. After the product pages, which find the zones. The name of the kind 24 section is
// cleared in the table, so that its tag is used once.
void BuildZonePages(SiteSnapshot& snapshot);
