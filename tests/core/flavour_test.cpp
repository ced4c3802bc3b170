#include "core/flavour.h"

#include "tests/support/files.h"
#include "text/ansi.h"

#include <gtest/gtest.h>

namespace {

constexpr char kNineLines[] = "ZAND\r\nINMO\r\nZandora\r\nVivienda\r\nViviendas\r\nF\r\n"
                              "Población-Zona\r\nZona de %PPROSING% %PRODSING%\r\n[N/A]";

// Complemented against 255, with the byte behind it that readers cut.
QByteArray Scrambled(const QString& text) {
    QByteArray bytes = ToAnsi(text);
    for (char& byte : bytes) {
        byte = static_cast<char>(~byte);
    }
    return bytes + '!';
}

class Flavour : public testing::Test {
protected:
    bool LoadBytes(const QByteArray& bytes) {
        WriteFile(home.filePath("sector.dat"), bytes);
        return LoadFlavour(home.path() + '/');
    }

    void TearDown() override { LoadFlavour("/nowhere/"); }

    QTemporaryDir home;
};

} // namespace

TEST_F(Flavour, NineLinesReplaceAllDefaults) {
    EXPECT_TRUE(LoadBytes(Scrambled(kNineLines)));
    EXPECT_TRUE(IsRealEstateFlavour());
    EXPECT_FALSE(IsGenericFlavour());
    EXPECT_EQ((QStringList{AppName, ProdSing, ProdPlur, ProdGender, CategoryCaption}.join('|')),
              "Zandora|Vivienda|Viviendas|F|Población-Zona");
    EXPECT_EQ(CategoryTip, "Zona de %PPROSING% %PRODSING%");
    EXPECT_EQ(LogoCaption, "[N/A]");
}

TEST_F(Flavour, AnythingShorterLeavesAllDefaults) {
    const QString nine = kNineLines;
    const QString eight = nine.left(nine.lastIndexOf("\r\n"));
    const QString wrongEnds = QString(nine).replace("\r\n", "\n");
    for (const QByteArray& bytes :
         {Scrambled(eight), Scrambled(wrongEnds), QByteArray(), QByteArray("!"), ToAnsi(nine)}) {
        EXPECT_TRUE(LoadBytes(bytes)); // the file is there, whatever it holds
        EXPECT_TRUE(IsGenericFlavour());
        EXPECT_EQ(AppName, "Lumenta");
        EXPECT_EQ(CategoryTip,
                  "Familia/Subfamilia de Productos a la que pertenece %PDETSING% %PRODSING%");
    }
    EXPECT_FALSE(LoadFlavour("/nowhere/"));
    EXPECT_TRUE(IsGenericFlavour());
}
