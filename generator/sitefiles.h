// The files that a template brings along and that pass into the site as they stand, but for the
// tags of the finishing pass.
#pragma once

#include "site/template.h"

#include <QString>

// Sections of kind 3: pages and scripts (".html", ".js") once for each language, everything else
// once for all.
void CopyTemplateFiles();

// The home page, kind 1, as "index" + language + ".html", and that of DefaultLang as "index.html"
// too. No home page where the section is the table's second one (index 1): the
// index.html that such a design copies itself would be overwritten.
void CopyIndexPages();

// The first section of kind 11, once for each language.
void CopyLanguagePages();

// About-us, find-us and the further page, kinds 8, 10 and 18, once for each language. For the
// preview of one of them, `previewKind`, the name of that section gets UICurrentLang for %LID% in
// the table itself, so that the pages of all languages bear it, and is returned without blanks
// around it; empty otherwise.
QString BuildFixedPages(SectionKind previewKind = kKindNone);
