#include "details/templatepreview.h"

#include "core/settings.h"
#include "site/template.h"
#include "tests/support/boxes.h"
#include "tests/support/templatebuilder.h"
#include "tests/support/testpictures.h"

#include <QBuffer>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

constexpr char kDamaged[] = "Se ha producido un error al abrir la plantilla de diseño";

QByteArray TwoByteBmp() {
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "BMP");
    return bytes;
}

} // namespace

TEST(TemplatePreview, ShowsIdentityLanguagesColoursAndTheNumberedPicture) {
    QTemporaryDir folder;
    LoadSettings();
    const QString path =
        TemplateBuilder()
            .Name("Escaparate")
            .Description("Un <b>diseño</b>")
            .Emphasis(200, 100)
            .AddBytes(kKindPreview, "", "", TwoByteBmp())
            .AddBytes(kKindPreview, "", "", MakeJpeg(FourFields({80, 60})))
            .AddBytes(kKindPreview, "", "", "no picture")
            .Add(kKindLanguages, "ES|EN", "", "%SI%|Sí|Yes")
            .Add(kKindColorSets, "", "", "NUMBERSOFSTYLES=2;COLORSSTYLE1=1,2;COLORSSTYLE2=3;")
            .Write(folder.path());
    QLabel name, description, maxEmph, picture;
    QLineEdit styles;
    const auto load = [&](const QString& file, int number) {
        return LoadTemplatePreview(file, &name, &description, &maxEmph, &styles, &picture, number);
    };
    BoxAnswers boxes;
    EXPECT_TRUE(load(path, 0));
    EXPECT_EQ(name.text(), "Escaparate");
    EXPECT_EQ(description.text(), "Un <b>diseño</b>");
    EXPECT_EQ(description.textFormat(), Qt::PlainText);
    EXPECT_EQ(maxEmph.text(), "44");
    EXPECT_EQ(styles.text(), "1,2|3");
    EXPECT_EQ(TemplateLangs, "ES|EN");
    EXPECT_EQ(picture.pixmap().size(), QSize(40, 20));
    EXPECT_TRUE(load(path, 2));
    EXPECT_EQ(picture.pixmap().size(), QSize(80, 60));
    EXPECT_TRUE(load(path, 4));
    EXPECT_TRUE(picture.pixmap().isNull());
    EXPECT_EQ(boxes.Texts(), "");
    styles.clear();
    EXPECT_TRUE(load(path, 3));
    EXPECT_EQ(boxes.Texts(), kDamaged);
    EXPECT_EQ(styles.text(), "");
    EXPECT_TRUE(LoadTemplatePreview(path, nullptr, nullptr, nullptr, nullptr, &picture, 1));

    EXPECT_FALSE(load("", 1));
    EXPECT_FALSE(load(folder.filePath("missing.zdt"), 1));
    EXPECT_EQ(boxes.seen.size(), 1u);
    EXPECT_TRUE(load(TemplateBuilder().Write(folder.path()), 1));
    EXPECT_EQ(TemplateLangs, "");
}
