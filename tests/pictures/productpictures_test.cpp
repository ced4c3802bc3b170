#include "core/settings.h"
#include "images/picture.h"
#include "pictures/productpictures.h"
#include "store/corpinfo.h"
#include "store/snapshot.h"
#include "tests/support/catalogue.h"
#include "tests/support/templatebuilder.h"
#include "tests/support/testpictures.h"

#include <QDir>
#include <gtest/gtest.h>

namespace {

constexpr QSize kSource(200, 100);

// A catalogue with pictures of two products, and the template's sections, loaded.
class ProductPictures : public testing::Test {
protected:
    void Load(const TemplateBuilder& builder) {
        builder.Load();
        IndexImageSections();
    }

    void Write(const QString& name, const QByteArray& bytes) {
        QFile file(catalogue.Folder() + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    void Render(const QString& productId) {
        RenderProductPictures(productId, "REF-" + productId, catalogue.Snapshot()[kSnapPictures]);
    }

    TestCatalogue catalogue{R"(product; 10001; REF-10001; 5; 0; Centro; 2024-01-01T00:00:00
                               product; 10002; REF-10002; 5; 0; Centro; 2024-01-01T00:00:00
                               picture; 10001; 2; 0
                               picture; 10001; 1; 1
                               picture; 10002; 1; 0
                               corp; CorpLogo; CorpLogo.dat
                               corp; FindUsMap; FindUsMap.dat)"};
};

// Name and size of every output so far; each is a JPEG free of metadata with the four fields.
std::vector<QString> Outputs() {
    std::vector<QString> outputs;
    for (const OutputFile& file : OutputFiles) {
        const QImage image = QImage::fromData(file.Data, "jpg");
        EXPECT_EQ(CornerFields(image, 16), "ABCD") << file.Name.toStdString();
        for (const int marker : SegmentsOf(file.Data)) {
            EXPECT_TRUE(marker == 0xE0 || marker < 0xE0) << marker;
        }
        EXPECT_EQ(file.Lang, "");
        outputs.push_back(
            QString("%1 %2x%3").arg(file.Name.trimmed()).arg(image.width()).arg(image.height()));
    }
    return outputs;
}

QByteArray CameraJpeg() {
    return WithSegment(MakeJpeg(FourFields(kSource), {.profile = SrgbProfile()}), 0xE1,
                       ExifBlock(1));
}

TemplateBuilder TwoSizes() {
    return TemplateBuilder()
        .Add(kKindProductPicture, "t%%PICTUREID%%.jpg", "RESIZE=100X100;", "")
        .Add(kKindProductPicture, "p%%PICTUREID%%.jpg", "OPTIMALSIZE=46X34;", "")
        .Add(kKindProductPicture, "x%%PICTUREID%%.jpg", "", "");
}

std::vector<QString> Lines(std::initializer_list<const char*> lines) {
    return {lines.begin(), lines.end()};
}

} // namespace

TEST_F(ProductPictures, EveryPictureOfTheProductIsRenderedForEverySizeInAlbumOrder) {
    Load(TwoSizes());
    Write("Pic1000101.dat", CameraJpeg());
    Write("Pic1000102.dat", MakeJpeg(FourFields(QSize(90, 200))));
    Render("10001");
    EXPECT_EQ(Outputs(), Lines({"t1000102.jpg 100x100", "p1000102.jpg 15x34",
                                "t1000101.jpg 100x100", "p1000101.jpg 46x23"}));
    const QStringList files = QDir(catalogue.Folder()).entryList(QDir::Files);
    EXPECT_TRUE(files.filter(".tmp").isEmpty()) << files.join(' ').toStdString();
}

TEST_F(ProductPictures, UnreadablePictureEndsThePassAndIsNamedForTheUser) {
    Load(TwoSizes());
    Write("Pic1000102.dat", CameraJpeg());
    Write("Pic1000101.dat", CameraJpeg().left(700));
    try {
        Render("10001");
        FAIL();
    } catch (const PictureError& error) {
        EXPECT_TRUE(error.Text().startsWith("Referencia REF-10001, fotografía 2: "));
        EXPECT_TRUE(error.Text().contains("Pic1000101.dat"));
    }
    EXPECT_EQ(Outputs().size(), 2u);
    EXPECT_THROW(Render("10002"), PictureError) << "missing";
}

TEST_F(ProductPictures, TemplateWithoutSizesReadsNoPicture) {
    Load(TemplateBuilder().Add(kKindProductPicture, "x%%PICTUREID%%.jpg", "", ""));
    Render("10001");
    Load(TemplateBuilder().Add(kKindProductPage, "p.html", "", "x"));
    Render("10001");
    PrepareNoPictureImages();
    AddCompanyLogos();
    EXPECT_TRUE(OutputFiles.empty() || OutputFiles[0].Name.isEmpty());
}

TEST_F(ProductPictures, OneRowIsRenderedForACallersOwnSection) {
    Write("Pic1000201.dat", CameraJpeg());
    Recordset& pictures = catalogue.Snapshot()[kSnapPictures];
    pictures.SetFilter({{u"ProductId", u"10002"}});
    TemplateSectionRecord section{.Name = "imagefind.jpg", .Params = "OPTIMALSIZE=460X345;"};
    const OutputFile file = RenderProductPicture(pictures, section);
    EXPECT_EQ(file.Name, "imagefind.jpg");
    EXPECT_EQ(QImage::fromData(file.Data).size(), QSize(460, 230));
    section.Params = "";
    EXPECT_TRUE(RenderProductPicture(pictures, section).Name.isEmpty());
}

TEST_F(ProductPictures, PlaceholderComesFromTheTemplateElseTheLogoInExactSizesOnly) {
    TemplateBuilder builder = TwoSizes();
    builder.AddBytes(kKindNoPicture, "", "", CameraJpeg());
    Load(builder);
    PrepareNoPictureImages();
    EXPECT_EQ(Outputs(), Lines({"tnopicture.jpg 100x100"}));

    ClearOutputFiles();
    Load(TwoSizes());
    EXPECT_THROW(PrepareNoPictureImages(), PictureError) << "logo missing";
    Write("CorpLogo.dat", CameraJpeg());
    PrepareNoPictureImages();
    EXPECT_EQ(Outputs(), Lines({"tnopicture.jpg 100x100"}));

    Load(TwoSizes().AddBytes(kKindNoPicture, "", "", ""));
    EXPECT_THROW(PrepareNoPictureImages(), PictureError) << "no body";

    ClearOutputFiles();
    Load(TwoSizes());
    CorpInfoData.CorpLogo.clear();
    PrepareNoPictureImages();
    EXPECT_EQ(Outputs(), Lines({})) << "neither";
}

TEST_F(ProductPictures, CompanyPicturesFitTheirSectionsWhereBothExist) {
    Load(TemplateBuilder()
             .Add(kKindFindUsMap, "map.jpg", "RESIZE=5X5;OPTIMALSIZE=50X50;", "")
             .Add(kKindExtraPicture, "extra.jpg", "OPTIMALSIZE=50X50;", "")
             .Add(kKindCorpLogo, "logo.jpg", "OPTIMALSIZE=300X60;", ""));
    Write("CorpLogo.dat", CameraJpeg());
    try {
        AddCompanyLogos();
        FAIL();
    } catch (const PictureError& error) {
        EXPECT_TRUE(error.Text().startsWith("Mapa: "));
    }
    ClearOutputFiles();
    Write("FindUsMap.dat", CameraJpeg());
    AddCompanyLogos();
    EXPECT_EQ(Outputs(), Lines({"logo.jpg 120x60", "map.jpg 50x25"}));
}
