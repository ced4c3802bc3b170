// The pictures of one product: the block of all but the first on its page, and a page of its own
// for each picture.
#pragma once

#include "generator/fieldvalues.h"
#include "site/tagtext.h"
#include "site/template.h"

#include <QByteArray>
#include <QString>

// The template's sections for it, read once for all products.
struct PictureFrames {
    PictureFrames();

    QByteArray TagName; // of the section of kind 5; empty without one: then there are no pictures
    QByteArray Head;
    TagText Middle;
    QByteArray Tail;
    QString PageName; // of the section of kind 17
    TagText Page;
    bool HasBlock;
    bool HasPage;
};

// The block's text for one product and language. The first picture is the product's main picture
// and stands in the page itself; the others, in album order, fill a copy of the middle each. Adds
// the page of every picture, the first one too, to OutputFiles.
QByteArray BuildPictureBlock(const PictureFrames& frames, const QString& productId,
                             const QString& lang, FieldSources& sources, Recordset& pictures);
