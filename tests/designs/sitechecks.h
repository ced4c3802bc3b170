// What is checked of a finished site, whatever its design: nothing in it may be broken.
#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

// One line a finding, "file: what", none when all is well.

// Tags and marks of the design that nothing has replaced, in pages, scripts and style sheets.
QStringList FindTagsLeft(const QDir& site);

// Links and pictures of pages and style sheets that the site does not hold, and such as would be
// asked of another host.
QStringList FindBrokenLinks(const QDir& site);

// What the HTML checker reports as errors or as markup that it had to move, drop or complete.
QStringList FindMalformedPages(const QDir& site);
