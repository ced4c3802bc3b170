#include "generator/zonepages.h"

#include "generator/siteproduct.h"
#include "generator/zones.h"
#include "site/outputs.h"
#include "site/template.h"
#include "site/transforms.h"
#include "text/ansi.h"

std::vector<ZonePageBlockRecord> ZonePageBlock;

using namespace Qt::StringLiterals;

namespace {

std::vector<ZoneLang> MarkedZones() {
    std::vector<ZoneLang> marked;
    std::copy_if(ZoneLangList.begin(), ZoneLangList.end(), std::back_inserter(marked),
                 [](const ZoneLang& zone) { return zone.Marked == kZoneMarked; });
    return marked;
}

QByteArray ZoneListing(const SectionParts& parts, const ZoneLang& zone, SiteSnapshot& snapshot,
                       FieldSources& sources) {
    Recordset& products = snapshot[kSnapProducts];
    const SiteProductReader reader(products);
    const TagText middle(parts.middle);
    QByteArray text = parts.head;
    products.SetFilter({{u"SaleZone", zone.SaleZone}});
    for (; products.HasRow(); products.MoveNext()) {
        text += ExpandListRow(middle, reader.Read(), zone.Lang, sources, snapshot[kSnapPictures]);
    }
    products.ClearFilter();
    return text + parts.tail;
}

void BuildListings(const std::vector<ZoneLang>& zones, SiteSnapshot& snapshot) {
    const int section = FindSections(kKindZoneBlock).front();
    if (section == kNoSection) {
        return;
    }
    FieldSources sources(snapshot);
    const SectionParts parts = SplitSectionBody(section);
    for (const ZoneLang& zone : zones) {
        ZonePageBlock.push_back({ToAnsi(TemplateSections[section].Name),
                                 ZoneListing(parts, zone, snapshot, sources), zone.Lang});
    }
    RenameSection(section, {});
}

QString ZonePageName(const ZoneLang& zone) {
    const QString key = zone.TipViv + u'-' + zone.SaleZone + u'-' + TrimBlanks(zone.Lang);
    return MakeFileSuffix(key) + u".html"_s;
}

} // namespace

void ResetZonePages() {
    ZonePageBlock.clear();
}

void BuildZonePages(SiteSnapshot& snapshot) {
    ZonePageBlock.clear();
    const std::vector<ZoneLang> zones = MarkedZones();
    if (zones.empty()) {
        return;
    }
    BuildListings(zones, snapshot);
    const int section = FindSection(kKindZonePage);
    if (section == kNoSection) {
        return;
    }
    for (size_t place = 0; place < zones.size(); ++place) {
        TagText page(SectionBodies[section]);
        if (place < ZonePageBlock.size()) {
            page.Replace(ZonePageBlock[place].TagName, ZonePageBlock[place].Text);
        }
        page.Replace("%%SALEZONE%%"_ba, ToAnsi(zones[place].SaleZone));
        page.Replace("%%TIPVIV%%"_ba, ToAnsi(zones[place].TipViv));
        AddOutputFile(
            {ZonePageName(zones[place]), zones[place].Lang, {}, false, TextToBytes(page.Text())});
    }
}
