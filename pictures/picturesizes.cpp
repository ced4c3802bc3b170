#include "pictures/picturesizes.h"

#include "images/picture.h"
#include "site/transforms.h"
#include "text/numbers.h"

namespace {

std::optional<SizeDemand> ReadDemand(const TemplateSectionRecord& section, const QString& key,
                                     bool exact) {
    const QString value = GetParam(section.Params, key);
    if (value.isEmpty()) {
        return {};
    }
    const QSize box(LeadingInteger(NthField(value, 1, "X")),
                    LeadingInteger(NthField(value, 2, "X")));
    if (box.isEmpty() || qint64(box.width()) * box.height() > kMaxDecodedPixels) {
        throw PictureError(
            QString("La sección %1 de la plantilla pide un tamaño de imagen imposible (%2=%3).")
                .arg(TrimBlanks(section.Name), key, value));
    }
    return SizeDemand{exact, box};
}

int WholePixels(double length) {
    return std::max(1, int(RoundHalfEven(length)));
}

} // namespace

std::optional<SizeDemand> ReadExactSize(const TemplateSectionRecord& section) {
    return ReadDemand(section, "RESIZE", true);
}

std::optional<SizeDemand> ReadFitSize(const TemplateSectionRecord& section) {
    return ReadDemand(section, "OPTIMALSIZE", false);
}

QSize FitPictureInto(QSize source, QSize box, int margin) {
    const double sourceWidth = std::max(1, source.width());
    const double sourceHeight = std::max(1, source.height());
    const int boxWidth = std::max(1, box.width() - margin);
    const int boxHeight = std::max(1, box.height() - margin);
    // Compared in single precision on purpose: it decides which side is the exact one.
    const float sourceRatio = float(sourceWidth / sourceHeight);
    const float boxRatio = float(double(boxWidth) / boxHeight);
    if (boxRatio >= sourceRatio) {
        return {WholePixels(sourceWidth / sourceHeight * boxHeight), boxHeight};
    }
    return {boxWidth, WholePixels(sourceHeight / sourceWidth * boxWidth)};
}

QSize DemandedSize(const SizeDemand& demand, QSize source) {
    return demand.exact ? demand.box : FitPictureInto(source, demand.box, 0);
}
