// What size a section of the template demands of its pictures. Its Params say RESIZE=WxH, with an
// upper-case X, for exactly that size, or OPTIMALSIZE=WxH for as large as fits inside with the
// proportions kept.
#pragma once

#include "site/template.h"

#include <QSize>
#include <optional>

struct SizeDemand {
    bool exact = false; // otherwise `box` is what the picture has to fit into
    QSize box;          // pixels, both sides at least 1
};

// What the key demands, or nothing where the section lacks it. PictureError, naming the section,
// where a side is no number above 0, or the picture would be beyond what memory is spent on.
std::optional<SizeDemand> ReadExactSize(const TemplateSectionRecord& section); // RESIZE
std::optional<SizeDemand> ReadFitSize(const TemplateSectionRecord& section);   // OPTIMALSIZE

// What a picture of `source` pixels becomes inside `box`; `margin` is taken off the box. Sides are
// at least 1. Rounded otherwise, pictures that nobody has touched would all be sent to a site
// again.
QSize FitPictureInto(QSize source, QSize box, int margin);

// Size of the output that a picture of `source` pixels gives.
QSize DemandedSize(const SizeDemand& demand, QSize source);
