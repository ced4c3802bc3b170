#include "generator/finish.h"

#include "core/addresses.h"
#include "core/settings.h"
#include "core/version.h"
#include "generator/choices.h"
#include "generator/emphasis.h"
#include "generator/fieldvalues.h"
#include "generator/zonepages.h"
#include "generator/zones.h"
#include "platform/events.h"
#include "site/abort.h"
#include "site/md5.h"
#include "site/outputs.h"
#include "site/steps.h"
#include "site/styles.h"
#include "site/tagtext.h"
#include "site/transforms.h"
#include "site/weblangs.h"
#include "store/corpinfo.h"
#include "store/langvalues.h"
#include "store/taggedtext.h"
#include "text/ansi.h"
#include "text/dates.h"

using namespace Qt::StringLiterals;

namespace {

// Tags and their values in the order in which they are replaced; made once, used by every file.
struct TagValue {
    QByteArray tag;
    QByteArray value;
};
using TagValues = std::vector<TagValue>;

void AddTag(TagValues& values, const QByteArray& tag, const QString& value) {
    values.push_back({tag, ToAnsi(value)});
}

void AddCompanyTags(TagValues& values) {
    const CorpInfoRecord& corp = CorpInfoData;
    AddTag(values, "%%CORPINFO.ADDRESS%%"_ba, CrLfToBr(corp.Address));
    AddTag(values, "%%CORPINFO.CELLULAR%%"_ba, corp.Cellular);
    AddTag(values, "%%CORPINFO.CIF%%"_ba, corp.CIF);
    AddTag(values, "%%CORPINFO.FAX%%"_ba, corp.Fax);
    AddTag(values, "%%CORPINFO.NAME%%"_ba, corp.Name);
    AddTag(values, "%%CORPINFO.PHONE%%"_ba, corp.Phone);
    AddTag(values, "%%CORPINFO.POSTALCODE%%"_ba, corp.PostalCode);
    AddTag(values, "%%CORPINFO.CONTACTEMAIL%%"_ba, corp.ContactEmail);
    for (int line = 0; line < kRegisterLines; ++line) {
        AddTag(values, "%%CORPINFO.MRINFO." + QByteArray::number(line) + "%%", corp.MRinfo[line]);
    }
    AddTag(values, "%%CORPINFO.ZONE%%"_ba, corp.Zone);
}

// What every text file gets: the zone lists first, since they may hold any of the others.
TagValues SiteTags() {
    TagValues values;
    for (const ZoneFragment& fragment : ZoneFragments) {
        values.push_back({fragment.TagName, fragment.Text});
    }
    AddTag(values, "%%LASTUPDATE%%"_ba, ShortDateText(Now().date()));
    AddTag(values, "%%VERSION%%"_ba, VersionText());
    values.push_back({"%%HIDELOGOAPI%%.START", ShowAPIlogo ? "" : "<!--"});
    values.push_back({"%%HIDELOGOAPI%%.END", ShowAPIlogo ? "" : "-->"});
    AddCompanyTags(values);
    return values;
}

QByteArray CaptionTag(const QString& number) {
    return "%%FIELDDEF" + ToAnsi(number) + "%%";
}

// Captions of the fields. The layout preview names them by their place among the fields shown, and
// the others vanish.
void AddCaptions(TagValues& values, const FieldSources& sources, const QString& lang) {
    for (qsizetype place = 0; place < ActiveFieldDefs.size(); ++place) {
        const auto def = sources.DefById.constFind(ActiveFieldDefs[place].toLongLong());
        if (def != sources.DefById.constEnd()) {
            AddTag(values, CaptionTag(QString::number(place)),
                   TaggedText(sources.Defs[*def].Caption, lang, 0));
        }
    }
    for (const FieldDef& def : sources.Defs) {
        AddTag(values, CaptionTag(def.Key),
               ActiveFieldDefs.isEmpty() ? TaggedText(def.Caption, lang, 0) : QString());
    }
}

// The block of a list with one element a language, if it has come that far.
template <typename Block>
void AddBlock(TagValues& values, const std::vector<Block>& blocks, qsizetype place) {
    if (place < static_cast<qsizetype>(blocks.size())) {
        values.push_back({blocks[place].TagName, blocks[place].Text});
    }
}

void AddCompanyTexts(TagValues& values, FieldSources& sources, const QString& lang) {
    for (const FieldItem& item : LoadLangFields(sources, QLatin1StringView(kCorpItemId),
                                                TextTableName(TextTable::CorpInfo), lang)) {
        AddTag(values, item.Tag, item.Value.isEmpty() ? u"-"_s : item.Value);
    }
}

// What the files of one language get besides, up to the template's words.
TagValues LanguageTags(FieldSources& sources, const LanguageSelector& selector, qsizetype place) {
    const QString& lang = WebLangs[place];
    TagValues values;
    for (const ChoiceBlock& block : ChoiceBlocks) {
        if (block.Lang == lang && !block.Text.isEmpty()) {
            values.push_back({block.TagName, block.Text});
        }
    }
    AddCaptions(values, sources, lang);
    values.push_back({selector.TagName, selector.Text});
    AddBlock(values, EmphasisBlock1, place);
    AddBlock(values, EmphasisBlock2, place);
    AddTag(values, "%LID%"_ba, lang);
    AddBlock(values, ZoneLinkBlocks, place);
    AddBlock(values, ZonePageBlock, place);
    AddCompanyTexts(values, sources, lang);
    return values;
}

void ReplaceAll(TagText& text, const TagValues& values) {
    for (const TagValue& value : values) {
        text.Replace(value.tag, value.value);
    }
}

// Comments in front of the home page and of every other page and script, with the maker's address
// behind the program's name if there is one.
QByteArray GeneratorComment(bool homePage) {
    QByteArray comment = "<!-- Web Generada con Lumenta";
    if (!Maker.homePage.isEmpty()) {
        comment += ' ' + ToAnsi(Maker.homePage);
    }
    if (homePage) {
        comment += " (V.%%VERSION%%)";
    }
    return comment + "--> \r\n\r\n\r\n\r\n";
}

// Everything that is the same for all files of the pass.
struct FinishPass {
    explicit FinishPass(SiteSnapshot& snapshot)
        : siteTags(SiteTags()), homeComment(GeneratorComment(true)),
          comment(GeneratorComment(false)) {
        FieldSources sources(snapshot);
        const LanguageSelector selector = BuildLanguageSelector(WebLangs);
        for (qsizetype place = 0; place < WebLangs.size(); ++place) {
            languageTags.push_back(LanguageTags(sources, selector, place));
        }
    }
    TagValues siteTags;
    std::vector<TagValues> languageTags; // in the order of WebLangs
    QByteArray homeComment;
    QByteArray comment;
    TagText text; // of the file being finished
};

void FinishText(OutputFile& file, const QString& upperName, FinishPass& pass) {
    TagText& text = pass.text;
    text.SetText(file.Data);
    file.Data.clear();
    file.Draft.reset();
    if (!upperName.endsWith(u".CSS")) {
        text.Prepend(upperName == u"INDEX.HTML" ? pass.homeComment : pass.comment);
    }
    for (const StyleColor& color : StyleColors) {
        text.ReplacePlain(color.Name, color.Value);
    }
    ReplaceAll(text, pass.siteTags);
    if (!file.Lang.isEmpty()) {
        const qsizetype place = WebLangs.indexOf(file.Lang);
        if (place >= 0) {
            ReplaceAll(text, pass.languageTags[place]);
        }
        ApplyLanguageStrings(text, file.Lang);
        file.Name.replace(u"%LID%"_s, file.Lang);
    }
    file.Data = TextToBytes(text.Text());
}

} // namespace

void FinishSite(SiteSnapshot& snapshot) {
    FinishPass pass(snapshot);
    const int count = static_cast<int>(OutputFiles.size());
    for (int place = 0; place < count && !AbortPublish; ++place) {
        SetProgress(place, count, 0, kBarTask);
        DoEvents();
        OutputFile file = TakeOutputFile(place);
        const QString upperName = TrimBlanks(file.Name).toUpper();
        if (upperName.endsWith(u".HTML") || upperName.endsWith(u".JS") ||
            upperName.endsWith(u".CSS")) {
            FinishText(file, upperName, pass);
        }
        file.Md5 = MD5Bytes(file.Data);
        PutOutputFile(place, std::move(file));
    }
}
