// The languages of the site and the template's fixed words in them. The template's section of kind
// 21 is named by language codes joined by "|"; its body, cut at "|", holds the tags and then the
// words of each of those languages, tags and words joined by "#". Owns WebLangs and the table of
// words.
#pragma once

#include "site/tagtext.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

extern QStringList WebLangs; // codes in the order of the setting; of the present generation

// At the beginning of a generation: the site's languages are those of the setting UserLangs, and
// the words of the last template are forgotten.
void ResetWebLangs();

// Reads the words of the template's first section of kind 21, if there is one. Throws
// std::runtime_error, with a text for the user, when a language has more words than there are tags;
// with fewer the last tags stay in the pages.
void LoadLanguageStrings();

// Replaces the template's tags by the words of `lang`, one after the other. A language that the
// template has no words for leaves the text alone.
void ApplyLanguageStrings(TagText& text, const QString& lang);

struct LanguageSelector {
    QByteArray TagName; // empty without a section of kind 22
    QByteArray Text;    // empty for a site in one language
};

// Links between the languages of a site, from the template's first section of kind 22.
LanguageSelector BuildLanguageSelector(const QStringList& languages);
