#include "tools/designkinds.h"

#include <algorithm>

namespace {

using enum NameUse;

constexpr DesignKind kKinds[] = {
    {kKindHomePage, "home", None, BodyUse::Text, true, false},
    {kKindProductPage, "product", File, BodyUse::Text, true, false},
    {kKindCopiedFile, "copy", File, BodyUse::File, false, true},
    {kKindZoneList, "zones", Tag, BodyUse::List, false, true},
    {kKindPictureBlock, "pictures", Tag, BodyUse::List, false, false},
    {kKindEmphasis1, "emphasis1", Tag, BodyUse::List, false, false},
    {kKindEmphasis2, "emphasis2", Tag, BodyUse::List, false, false},
    {kKindAboutUs, "aboutus", File, BodyUse::Text, true, false},
    {kKindDataList, "data", File, BodyUse::Text, true, false},
    {kKindFindUs, "findus", File, BodyUse::Text, true, false},
    {kKindLanguagePage, "language-page", File, BodyUse::Text, true, false},
    {kKindProductPicture, "product-picture", File, BodyUse::None, false, true},
    {kKindPreview, "preview", None, BodyUse::Picture, false, true},
    {kKindCorpLogo, "logo", File, BodyUse::None, false, false},
    {kKindExtraPicture, "extra-picture", File, BodyUse::None, false, false},
    {kKindFindUsMap, "map", File, BodyUse::None, false, false},
    {kKindPicturePage, "picture-page", File, BodyUse::Text, true, false},
    {kKindFixedPage, "page", File, BodyUse::Text, true, false},
    {kKindNoPicture, "no-picture", None, BodyUse::Picture, false, false},
    {kKindLayoutPage, "layout", File, BodyUse::Text, false, false},
    {kKindLanguages, "words", Languages, BodyUse::Text, false, false},
    {kKindLanguageSelector, "language-selector", Tag, BodyUse::List, false, false},
    {kKindChoiceList, "choices", Tag, BodyUse::List, false, true},
    {kKindZoneBlock, "zone-block", Tag, BodyUse::List, false, false},
    {kKindZonePage, "zone-page", File, BodyUse::Text, false, false},
    {kKindZoneLinks, "zone-links", Tag, BodyUse::List, false, false},
    {kKindCategoryTree, "categories", Tag, BodyUse::List, false, true},
    {kKindColorSets, "colors", None, BodyUse::Text, false, false},
};

template <typename Condition> const DesignKind* FindKind(Condition condition) {
    const auto found = std::find_if(std::begin(kKinds), std::end(kKinds), condition);
    return found == std::end(kKinds) ? nullptr : found;
}

} // namespace

const DesignKind* FindDesignKind(int number) {
    return FindKind([number](const DesignKind& kind) { return kind.number == number; });
}

const DesignKind* FindDesignKind(const QString& wordOrNumber) {
    return FindKind([&wordOrNumber](const DesignKind& kind) {
        return wordOrNumber == QLatin1StringView(kind.word) ||
               wordOrNumber == QString::number(kind.number);
    });
}
