// Pictures that can't be rendered, and what the reader of the message needs to find them. What is
// rendered is compared in tests/sites.
#include "core/settings.h"
#include "images/picture.h"
#include "pictures/productpictures.h"
#include "store/corpinfo.h"
#include "store/snapshot.h"
#include "tests/support/catalogue.h"
#include "tests/support/files.h"
#include "tests/support/templatebuilder.h"
#include "tests/support/testpictures.h"

#include <gtest/gtest.h>

namespace {

constexpr qsizetype kWhole = 1000000; // bytes of a file

// A catalogue with pictures of two products, and the template's sections, loaded.
class ProductPictures : public testing::Test {
protected:
    static void Load(const TemplateBuilder& builder) {
        builder.Load();
        IndexImageSections();
    }

    void Write(const QString& name, qsizetype bytes = kWhole) const {
        WriteFile(catalogue.Folder() + name, MakeJpeg(FourFields({200, 100})).left(bytes));
    }

    void Render(const QString& productId) {
        RenderProductPictures(productId, "REF-" + productId, catalogue.Snapshot()[kSnapPictures]);
    }

    // What the pass says when it ends early.
    template <typename Pass> static std::string Refusal(Pass pass) {
        try {
            pass();
        } catch (const PictureError& error) {
            return error.Text().toStdString();
        }
        return "none";
    }

    TestCatalogue catalogue{R"(product; 10001; REF-10001; 5; 0; Centro; 2024-01-01T00:00:00
                               product; 10002; REF-10002; 5; 0; Centro; 2024-01-01T00:00:00
                               picture; 10001; 2; 0
                               picture; 10001; 1; 1
                               picture; 10002; 1; 0
                               corp; CorpLogo; CorpLogo.dat
                               corp; FindUsMap; FindUsMap.dat)"};
};

TemplateBuilder OneSize() {
    return TemplateBuilder().Add(kKindProductPicture, "t%%PICTUREID%%.jpg", "RESIZE=10X10;", "");
}

} // namespace

TEST_F(ProductPictures, UnreadablePictureEndsThePassAndIsNamedForTheUser) {
    Load(OneSize());
    Write("Pic1000102.dat");
    Write("Pic1000101.dat", 700);
    const std::string said = Refusal([this] { Render("10001"); });
    EXPECT_EQ(said.find("Referencia REF-10001, fotografía 2: "), 0u) << said;
    EXPECT_NE(said.find("Pic1000101.dat"), std::string::npos) << said;
    EXPECT_EQ(OutputFiles.size(), 1u);
    EXPECT_NE(Refusal([this] { Render("10002"); }), "none") << "missing";
}

TEST_F(ProductPictures, TemplateWithoutSizesReadsNoPicture) {
    Load(TemplateBuilder()
             .Add(kKindProductPicture, "x%%PICTUREID%%.jpg", "", "")
             .Add(kKindProductPicture, "   ", "RESIZE=10X10;", "")
             .Add(kKindFindUsMap, "map.jpg", "RESIZE=5X5;", ""));
    Render("10001");
    PrepareNoPictureImages();
    AddCompanyLogos();
    EXPECT_TRUE(OutputFiles.empty());
}

TEST_F(ProductPictures, OneRowIsRenderedForACallersOwnSection) {
    Write("Pic1000201.dat");
    Recordset& pictures = catalogue.Snapshot()[kSnapPictures];
    pictures.SetFilter({{u"ProductId", u"10002"}});
    TemplateSectionRecord section{.Name = "imagefind.jpg", .Params = "OPTIMALSIZE=460X345;"};
    const OutputFile file = RenderProductPicture(pictures, section);
    EXPECT_EQ(file.Name, "imagefind.jpg");
    EXPECT_EQ(QImage::fromData(file.Data).size(), QSize(460, 230));
    section.Params = "";
    EXPECT_TRUE(RenderProductPicture(pictures, section).Name.isEmpty());
}

TEST_F(ProductPictures, PlaceholderAndCompanyPicturesAreNamedByTheirPlaceOnTheScreen) {
    Load(OneSize());
    EXPECT_EQ(Refusal(PrepareNoPictureImages).find("Logotipo: "), 0u);
    Load(OneSize().AddBytes(kKindNoPicture, "", "", ""));
    EXPECT_NE(Refusal(PrepareNoPictureImages).find("sin fotografía"), std::string::npos);
    Load(TemplateBuilder().Add(kKindFindUsMap, "map.jpg", "OPTIMALSIZE=50X50;", ""));
    EXPECT_EQ(Refusal(AddCompanyLogos).find("Mapa: "), 0u);
    Load(OneSize());
    CorpInfoData.CorpLogo.clear();
    EXPECT_EQ(Refusal(PrepareNoPictureImages), "none");
    EXPECT_TRUE(OutputFiles.empty());
}
