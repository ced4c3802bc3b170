#include "store/corpinfo.h"

#include "core/settings.h"
#include "store/store.h"

CorpInfoRecord CorpInfoData;

namespace {

constexpr char kCorpInfoStatement[] = "SELECT * FROM CorpInfo";

// Calls `visit` with each column's name and its place in the record, in the order of the table.
template <class Visit> void ForEachField(CorpInfoRecord& record, Visit visit) {
    visit("Name", record.Name);
    visit("CIF", record.CIF);
    visit("Phone", record.Phone);
    visit("Fax", record.Fax);
    visit("Cellular", record.Cellular);
    visit("Address", record.Address);
    visit("PostalCode", record.PostalCode);
    visit("Zone", record.Zone);
    visit("CorpLogo", record.CorpLogo);
    visit("ExtraPicture", record.ExtraPicture);
    visit("ContactEmail", record.ContactEmail);
    visit("FindUsMap", record.FindUsMap);
    for (int line = 0; line < kRegisterLines; ++line) {
        visit(QStringLiteral("MRinfo%1").arg(line), record.MRinfo[line]);
    }
    visit("LastUpdate", record.LastUpdate);
}

} // namespace

void LoadCorpInfo() {
    RunQuery(kCursorScratch, kCorpInfoStatement);
    CorpInfoData = {};
    if (adcData[kCursorScratch].HasRow()) {
        ForEachField(CorpInfoData, [](const QString& column, QString& value) {
            value = adcData[kCursorScratch].Text(column);
        });
    }
    LoadShowAPIlogo();
}

void SaveCorpInfo(const CorpInfoRecord& record) {
    CorpInfoData = record;
    RunQuery(kCursorScratch, kCorpInfoStatement);
    Recordset& row = adcData[kCursorScratch];
    if (!row.HasRow()) {
        row.AddNew();
    }
    ForEachField(CorpInfoData, [](const QString& column, QString& value) {
        adcData[kCursorScratch].Set(column, value);
    });
    row.Update();
    WaitForCursor(row);
}
