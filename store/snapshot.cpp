#include "store/snapshot.h"

#include "platform/events.h"
#include "store/fielddefs.h"
#include "store/store.h"

#include <array>

namespace {

// The statements of the sets, in their order; "%1" is the number of public fields, "%2" their
// condition.
constexpr std::array<const char*, kSnapshotSets> kStatements = {
    "SELECT * FROM Products WHERE IsNew < 2 ORDER BY IsNew DESC, LastUpdate DESC",
    "SELECT * FROM ProductFields WHERE FieldDefId < %1 AND ProductId in (SELECT ProductId FROM "
    "Products WHERE IsNew < 2) ORDER BY ProductId, FieldDefId",
    "SELECT * FROM Pictures ORDER BY ProductId, OrderInForm",
    "SELECT SaleZone, count(*) FROM Products WHERE SaleZone is not null AND SaleZone <>'' AND "
    "IsNew "
    "< 2 GROUP BY Salezone ORDER BY SaleZone",
    "SELECT * FROM ProductFieldDef WHERE %2 ORDER BY FieldDefId",
    "SELECT * FROM CorpInfo",
    "SELECT * FROM MultiLangFields ORDER BY FieldDefId",
    "SELECT * FROM MultiLangFieldDef ORDER BY FieldDefId",
};

} // namespace

void TakeSiteSnapshot(SiteSnapshot& sets) {
    sets.clear();
    sets.resize(kSnapshotSets);
    ParkCursor(kCursorScratch);
    for (int set = 0; set < kSnapshotSets; ++set) {
        sets[set] = adcData[kCursorScratch].Clone();
        sets[set].SetSource(QString::fromLatin1(kStatements[set])
                                .replace("%1", QString::number(FirstHiddenField))
                                .replace("%2", kPublicFields));
        sets[set].Open();
        WaitForCursor(sets[set]);
        DoEvents();
    }
}

void DropSiteSnapshot(SiteSnapshot& sets) {
    sets.clear();
}
