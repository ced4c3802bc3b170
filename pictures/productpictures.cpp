#include "pictures/productpictures.h"

#include "core/settings.h"
#include "images/jpegwriter.h"
#include "images/picturefile.h"
#include "images/scaling.h"
#include "site/transforms.h"
#include "store/corpinfo.h"
#include "text/ansi.h"

namespace {

constexpr char kPictureIdTag[] = "%%PICTUREID%%";
constexpr char kNoPictureId[] = "nopicture";

// One output of a picture: which section demands it, and how.
struct Demand {
    const TemplateSectionRecord* section;
    SizeDemand size;
};

struct CompanyPicture {
    QString caption;
    QString fileName; // in the store's folder
};

CompanyPicture Logo() {
    return {"Logotipo", CorpInfoData.CorpLogo};
}

std::optional<SizeDemand> ProductDemand(const TemplateSectionRecord& section) {
    const std::optional<SizeDemand> exact = ReadExactSize(section);
    return exact ? exact : ReadFitSize(section);
}

// Of the product-picture sections, in table order, those with a name for which `read` finds a
// demand.
template <class Read> std::vector<Demand> ReadDemands(const Read& read) {
    std::vector<Demand> demands;
    for (const int index : ImageSections) {
        if (index == kNoSection) {
            continue;
        }
        const TemplateSectionRecord& section = TemplateSections[index];
        if (TrimBlanks(section.Name).isEmpty()) {
            continue;
        }
        if (const std::optional<SizeDemand> size = read(section)) {
            demands.push_back({&section, *size});
        }
    }
    return demands;
}

// The size that a decoded picture must cover so that it serves all the outputs.
QSize NeededSize(const std::vector<Demand>& demands, QSize natural) {
    QSize needed;
    for (const Demand& demand : demands) {
        needed = needed.expandedTo(DemandedSize(demand.size, natural));
    }
    return needed;
}

OutputFile RenderOutput(const DecodedPicture& picture, const Demand& demand,
                        const QString& pictureId) {
    const QSize size = DemandedSize(demand.size, picture.naturalSize);
    OutputFile file;
    file.Name =
        FromAnsi(ReplaceTag(ToAnsi(demand.section->Name), kPictureIdTag, ToAnsi(pictureId)));
    file.Data = EncodeJpeg(ScalePicture(picture.image, size));
    return file;
}

void AddOutputs(const DecodedPicture& picture, const std::vector<Demand>& demands,
                const QString& pictureId) {
    for (const Demand& demand : demands) {
        AddOutputFile(RenderOutput(picture, demand, pictureId));
    }
}

DecodedPicture ReadFor(const std::vector<Demand>& demands, const QString& path) {
    return ReadPicture(path, NeededSize(demands, ReadPictureSize(path)));
}

QString PicturePath(const Recordset& pictures) {
    return DBpath + pictures.Text(u"PicturePath");
}

// A company picture is known to the user by its place on the screen, not by its file's name.
DecodedPicture ReadCompanyPicture(const std::vector<Demand>& demands, const CompanyPicture& which) {
    try {
        return ReadFor(demands, DBpath + which.fileName);
    } catch (const PictureError& error) {
        throw PictureError(QString("%1: %2").arg(which.caption, error.Text()));
    }
}

void AddCompanyPicture(const CompanyPicture& which, int kind) {
    const int index = FindSection(kind);
    if (which.fileName.isEmpty() || index == kNoSection) {
        return;
    }
    const TemplateSectionRecord& section = TemplateSections[index];
    if (const std::optional<SizeDemand> size = ReadFitSize(section)) {
        const Demand demand{&section, *size};
        AddOutputFile(RenderOutput(ReadCompanyPicture({demand}, which), demand, {}));
    }
}

} // namespace

OutputFile RenderProductPicture(const Recordset& pictures, const TemplateSectionRecord& section) {
    const std::optional<SizeDemand> size = ProductDemand(section);
    if (!size) {
        return {};
    }
    const Demand demand{&section, *size};
    return RenderOutput(ReadFor({demand}, PicturePath(pictures)), demand,
                        pictures.Text(u"PictureId"));
}

void RenderProductPictures(const QString& productId, const QString& productRef,
                           Recordset& pictures) {
    const std::vector<Demand> demands = ReadDemands(ProductDemand);
    if (demands.empty()) {
        return;
    }
    pictures.SetFilter({{u"ProductId", productId}});
    for (pictures.MoveFirst(); pictures.HasRow(); pictures.MoveNext()) {
        try {
            AddOutputs(ReadFor(demands, PicturePath(pictures)), demands,
                       pictures.Text(u"PictureId"));
        } catch (const PictureError& error) {
            throw PictureError(QString("Referencia %1, fotografía %2: %3")
                                   .arg(productRef)
                                   .arg(pictures.Integer(u"OrderInForm") + 1)
                                   .arg(error.Text()));
        }
    }
}

void PrepareNoPictureImages() {
    const std::vector<Demand> demands = ReadDemands(ReadExactSize);
    if (demands.empty()) {
        return;
    }
    const int index = FindSection(kKindNoPicture);
    if (index != kNoSection) {
        const QSize needed = NeededSize(demands, {});
        AddOutputs(ReadPictureBytes(SectionBodies[index],
                                    "de la plantilla para productos sin "
                                    "fotografía",
                                    needed),
                   demands, kNoPictureId);
    } else if (!CorpInfoData.CorpLogo.isEmpty()) {
        AddOutputs(ReadCompanyPicture(demands, Logo()), demands, kNoPictureId);
    }
}

void AddCompanyLogos() {
    AddCompanyPicture(Logo(), kKindCorpLogo);
    AddCompanyPicture({"Fotografía Oficinas", CorpInfoData.ExtraPicture}, kKindExtraPicture);
    AddCompanyPicture({"Mapa", CorpInfoData.FindUsMap}, kKindFindUsMap);
}
