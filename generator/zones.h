// The sale zones in pages: their codes, the list of all zones, and the zones that occur per
// language with the links to their listing pages. Owns the four lists.
#pragma once

#include "store/snapshot.h"

#include <QByteArray>
#include <QString>
#include <vector>

// Mark of a zone that gets a listing page.
inline constexpr int kZoneMarked = 65535;

struct ZoneCodeEntry {
    QString Code; // place in the list, upper-case hexadecimal
    QString Zone;
};

struct ZoneFragment {
    QByteArray TagName; // replaced by Text in every text file
    QByteArray Text;
};

struct ZoneLang {
    QString TipViv; // kind of product; empty in present catalogues
    QString SaleZone;
    QString Lang;
    int Marked = 0; // kZoneMarked or not; nothing marks a zone at present
};

struct ZoneLinkBlock {
    QByteArray TagName;
    QByteArray Text;
    QString Lang;
};

extern std::vector<ZoneCodeEntry> ZoneCodes;    // made by BuildZoneList
extern std::vector<ZoneFragment> ZoneFragments; // the same; one for each section of kind 4
extern std::vector<ZoneLang> ZoneLangList;      // filled by the product pages
extern std::vector<ZoneLinkBlock>
    ZoneLinkBlocks; // one a language in the order of WebLangs, or none

// At the beginning of a generation: all four lists.
void ResetZones();

// Codes and fragments of the zones that have products, in their order.
void BuildZoneList(SiteSnapshot& snapshot);

// Exact match; empty for a zone without code.
QString ZoneCode(const QString& zone);

void ResetZoneLangList();

// Notes a zone, once for the same three texts.
void AddZoneLang(const QString& tipViv, const QString& zone, const QString& lang, int marked);

// Links to the listing pages of the zones that have both texts, from the section of kind 26.
void BuildZoneLinks();
