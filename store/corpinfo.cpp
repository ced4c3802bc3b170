#include "store/corpinfo.h"

#include "core/settings.h"
#include "store/store.h"

CorpInfoRecord CorpInfoData;

namespace {

constexpr char kCorpInfoStatement[] = "SELECT * FROM CorpInfo";

} // namespace

void LoadCorpInfo() {
    RunQuery(kCursorScratch, kCorpInfoStatement);
    Recordset& row = adcData[kCursorScratch];
    CorpInfoRecord record;
    if (row.HasRow()) {
        record.Name = row.Text(u"Name");
        record.CIF = row.Text(u"CIF");
        record.Phone = row.Text(u"Phone");
        record.Fax = row.Text(u"Fax");
        record.Cellular = row.Text(u"Cellular");
        record.Address = row.Text(u"Address");
        record.PostalCode = row.Text(u"PostalCode");
        record.Zone = row.Text(u"Zone");
        record.CorpLogo = row.Text(u"CorpLogo");
        record.ExtraPicture = row.Text(u"ExtraPicture");
        record.ContactEmail = row.Text(u"ContactEmail");
        record.FindUsMap = row.Text(u"FindUsMap");
        for (int line = 0; line < kRegisterLines; ++line) {
            record.MRinfo[line] = row.Text(QStringLiteral("MRinfo%1").arg(line));
        }
        record.LastUpdate = row.Text(u"LastUpdate");
    }
    CorpInfoData = record;
    LoadShowAPIlogo();
}
