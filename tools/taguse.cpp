#include "tools/taguse.h"

#include "text/ansi.h"

#include <QRegularExpression>

namespace {

// Steps of the pass over all files, in order. A list enters a page at its own step.
enum Step {
    kBuilt, // while the section itself is expanded, before all steps
    kZones,
    kSiteWide,
    kChoices,
    kCaptions,
    kSelector,
    kEmphasis,
    kLanguage,
    kZoneLinks,
    kCompanyTexts,
    kWords,
    kNever
};

// Sections in whose own expansion a tag is replaced.
enum Place : unsigned {
    kNowhere = 0,
    kProductPages = 1,
    kEmphasisItems = 2, // zone blocks too
    kPictureItems = 4,
    kPicturePages = 8,
    kZoneItems = 16,
    kChoiceItems = 32,
    kDataFiles = 64,
    kLinkItems = 128,
    kZonePages = 256,
    kProducts = kProductPages | kEmphasisItems,
    kPictures = kPictureItems | kPicturePages
};

struct KnownTag {
    const char* pattern; // of the name between the percent signs
    unsigned places;
    Step step; // at which it is replaced in every page; kNever: only at its places
};

constexpr KnownTag kKnownTags[] = {
    {"PRODUCTID", kProducts | kPictures, kNever},
    {"PRID|PRICEAMOUNT2?|PRICECURRENCY", kProducts, kNever},
    {"SALEZONE", kProducts | kZoneItems | kLinkItems | kZonePages, kNever},
    {"PRODUCTREF", kProductPages, kNever},
    {"MAINPICTUREID", kProducts | kPictureItems, kNever},
    {"[0-9]+", kProducts, kNever},
    {"SHORTDESC|LONGDESC|CATEGORY", kProducts, kNever},
    {"PICTUREID|PRODPICTUREID|PICTITLE|PICCOMMENTS", kPictures, kNever},
    {"SALEZONEID", kZoneItems, kNever},
    {"CHOICE|CHOICEVALUE", kChoiceItems, kNever},
    {"TIPVIV", kLinkItems | kZonePages, kNever},
    {"FILENAME", kLinkItems, kNever},
    {"LIST[A-Z0-9]+", kDataFiles, kNever},
    {"LASTUPDATE|VERSION|HIDELOGOAPI", kNowhere, kSiteWide},
    {"CORPINFO\\.(NAME|CIF|PHONE|FAX|CELLULAR|ADDRESS|POSTALCODE|ZONE|CONTACTEMAIL)", kNowhere,
     kSiteWide},
    {"CORPINFO\\.MRINFO\\.[0-6]", kNowhere, kSiteWide},
    {"FIELDDEF[0-9]+", kNowhere, kCaptions},
    {"ABOUTTEXT|FINDUSTEXT|HOMETITLE|ABOUTTITLE", kNowhere, kCompanyTexts},
    {"ACONSULTAR", kNowhere, kWords},
};

struct KindUse {
    int kind;
    unsigned place;
    Step entry; // the step at which its list enters a page
};

constexpr KindUse kKindUses[] = {
    {kKindProductPage, kProductPages, kBuilt},    {kKindLayoutPage, kProductPages, kBuilt},
    {kKindZoneList, kZoneItems, kZones},          {kKindPictureBlock, kPictureItems, kBuilt},
    {kKindEmphasis1, kEmphasisItems, kEmphasis},  {kKindEmphasis2, kEmphasisItems, kEmphasis},
    {kKindDataList, kDataFiles, kBuilt},          {kKindPicturePage, kPicturePages, kBuilt},
    {kKindLanguageSelector, kNowhere, kSelector}, {kKindChoiceList, kChoiceItems, kChoices},
    {kKindZoneBlock, kEmphasisItems, kBuilt},     {kKindZonePage, kZonePages, kBuilt},
    {kKindZoneLinks, kLinkItems, kZoneLinks},     {kKindCategoryTree, kChoiceItems, kChoices},
};

KindUse UseOf(int kind) {
    for (const KindUse& use : kKindUses) {
        if (use.kind == kind) {
            return use;
        }
    }
    return {kind, kNowhere, kBuilt};
}

// The steps reach pages, scripts and style sheets; those from the choices on need a language.
Step LastStep(const DesignSection& section) {
    if (section.kind->name != NameUse::File) {
        return kWords;
    }
    if (!section.IsFinished()) {
        return kBuilt;
    }
    return section.kind->body == BodyUse::Text || section.IsPerLanguage() ? kWords : kSiteWide;
}

bool IsReplacedAt(Step step, const DesignSection& section) {
    return step > UseOf(section.kind->number).entry && step <= LastStep(section);
}

// The step at which a list's tag is replaced in pages.
Step EntryOf(int kind) {
    return kind == kKindPictureBlock || kind == kKindZoneBlock ? kNever : UseOf(kind).entry;
}

const KnownTag* FindKnownTag(const QString& name) {
    for (const KnownTag& tag : kKnownTags) {
        const QRegularExpression pattern(QRegularExpression::anchoredPattern(tag.pattern));
        if (pattern.match(name).hasMatch()) {
            return &tag;
        }
    }
    return nullptr;
}

} // namespace

TagUse::TagUse(const Design& design) {
    for (const QString& name : design.textNames) {
        productTexts.insert("%%" + name.toUpper() + "%%");
    }
    static const QRegularExpression tag("%%[A-Za-z0-9_.]+%%");
    for (const DesignSection& section : design.sections) {
        if (section.kind->name == NameUse::Tag) {
            sectionTags.insert(section.name, section.kind->number);
        }
        if (section.kind->number == kKindLanguages) {
            for (const auto& match : tag.globalMatch(FromAnsi(section.body))) {
                ownTags.insert(match.captured());
            }
        }
    }
}

TagFate TagUse::FateIn(const DesignSection& section, const QString& tag) const {
    const auto fate = [](bool replaced) { return replaced ? TagFate::Replaced : TagFate::Stays; };
    const unsigned place = UseOf(section.kind->number).place;
    if (productTexts.contains(tag)) {
        return TagFate::Replaced;
    }
    const auto list = sectionTags.constFind(tag);
    if (list != sectionTags.constEnd()) {
        const bool inside = (*list == kKindPictureBlock && (place & kProductPages) != 0) ||
                            (*list == kKindZoneBlock && (place & kZonePages) != 0);
        return fate(inside || IsReplacedAt(EntryOf(*list), section));
    }
    if (ownTags.contains(tag) && IsReplacedAt(kWords, section)) {
        return TagFate::Replaced;
    }
    const KnownTag* known = FindKnownTag(tag.mid(2, tag.size() - 4));
    if (known == nullptr) {
        return ownTags.contains(tag) ? TagFate::Stays : TagFate::Unknown;
    }
    return fate((known->places & place) != 0 || IsReplacedAt(known->step, section));
}

bool TagUse::KnowsLanguage(const DesignSection& section) const {
    const int kind = section.kind->number;
    return kind == kKindLanguageSelector || kind == kKindPictureBlock ||
           IsReplacedAt(kLanguage, section);
}

QStringList TagsOfFileName(const DesignSection& section) {
    switch (section.kind->number) {
    case kKindProductPage:
    case kKindLayoutPage:
        return {"%%PRODUCTID%%", "%%PRID%%", "%%PRICEAMOUNT%%", "%%PRICECURRENCY%%",
                "%%SALEZONE%%"};
    case kKindProductPicture:
        return {"%%PICTUREID%%"};
    case kKindPicturePage:
        return {"%%PICTUREID%%", "%%PRODUCTID%%"};
    default:
        return {};
    }
}
