#include "generator/zones.h"

#include "site/tagtext.h"
#include "site/template.h"
#include "site/transforms.h"
#include "site/weblangs.h"
#include "text/ansi.h"

#include <QHash>
#include <QSet>

std::vector<ZoneCodeEntry> ZoneCodes;
std::vector<ZoneFragment> ZoneFragments;
std::vector<ZoneLang> ZoneLangList;
std::vector<ZoneLinkBlock> ZoneLinkBlocks;

using namespace Qt::StringLiterals;

namespace {

// Answers "which code" and "is it there" without walking the lists; rebuilt with them.
QHash<QString, QString> codeByZone;
QSet<QString> knownZoneLangs; // the three texts, joined by NUL

void ReadZoneCodes(Recordset& zones) {
    ZoneCodes.clear();
    codeByZone.clear();
    zones.ClearFilter();
    for (zones.MoveFirst(); zones.HasRow(); zones.MoveNext()) {
        const QString zone = zones.Text(u"SaleZone");
        if (zone.isEmpty()) {
            continue;
        }
        const QString code = QString::number(ZoneCodes.size(), 16).toUpper();
        ZoneCodes.push_back({code, zone});
        if (!codeByZone.contains(zone)) {
            codeByZone.insert(zone, code);
        }
    }
}

QByteArray ZoneListText(const SectionParts& parts) {
    const TagText middle(parts.middle);
    QByteArray text = parts.head;
    for (const ZoneCodeEntry& entry : ZoneCodes) {
        TagText item = middle;
        item.Replace("%%SALEZONE%%"_ba, ToAnsi(entry.Zone));
        item.Replace("%%SALEZONEID%%"_ba, ToAnsi(entry.Code));
        text += item.Text();
    }
    return text + parts.tail;
}

QByteArray ZoneLinksText(const SectionParts& parts, const QString& lang) {
    const TagText middle(parts.middle);
    QByteArray text = parts.head;
    for (const ZoneLang& entry : ZoneLangList) {
        if (entry.Lang != lang || entry.SaleZone.isEmpty() || entry.TipViv.isEmpty()) {
            continue;
        }
        const QString key = entry.TipViv + u'-' + entry.SaleZone + u'-' + entry.Lang;
        TagText item = middle;
        item.Replace("%%TIPVIV%%"_ba, ToAnsi(entry.TipViv));
        item.Replace("%%SALEZONE%%"_ba, ToAnsi(entry.SaleZone));
        item.Replace("%%FILENAME%%"_ba, ToAnsi(MakeFileSuffix(key) + u".html"_s));
        text += item.Text();
    }
    return text + parts.tail;
}

} // namespace

void ResetZones() {
    ZoneCodes.clear();
    codeByZone.clear();
    ZoneFragments.clear();
    ZoneLinkBlocks.clear();
    ResetZoneLangList();
}

void BuildZoneList(SiteSnapshot& snapshot) {
    ReadZoneCodes(snapshot[kSnapZones]);
    ZoneFragments.clear();
    for (const int section : AllSections(kKindZoneList)) {
        ZoneFragments.push_back(
            {ToAnsi(TemplateSections[section].Name), ZoneListText(SplitSectionBody(section))});
    }
}

QString ZoneCode(const QString& zone) {
    return codeByZone.value(zone);
}

void ResetZoneLangList() {
    ZoneLangList.clear();
    knownZoneLangs.clear();
}

void AddZoneLang(const QString& tipViv, const QString& zone, const QString& lang, int marked) {
    const QString key = tipViv + QChar(u'\0') + zone + QChar(u'\0') + lang;
    if (!knownZoneLangs.contains(key)) {
        knownZoneLangs.insert(key);
        ZoneLangList.push_back({tipViv, zone, lang, marked});
    }
}

void BuildZoneLinks() {
    const int section = FindSection(kKindZoneLinks);
    if (section == kNoSection) {
        return;
    }
    const SectionParts parts = SplitSectionBody(section);
    for (const QString& lang : WebLangs) {
        ZoneLinkBlocks.push_back(
            {ToAnsi(TemplateSections[section].Name), ZoneLinksText(parts, lang), lang});
    }
}
