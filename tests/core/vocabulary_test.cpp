#include "core/vocabulary.h"

#include "core/flavour.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <gtest/gtest.h>

namespace {

class Vocabulary : public testing::Test {
protected:
    void SetUp() override { LoadFlavour("/nowhere/"); }
    void TearDown() override { LoadFlavour("/nowhere/"); }

    static void UseFeminine() {
        ProdSing = "Vivienda";
        ProdPlur = "Viviendas";
        ProdGender = "F";
    }
};

} // namespace

TEST_F(Vocabulary, TextKeepsItsFirstCharacterAndTheResultCapitalisesIt) {
    QString text = "%PPROSING% %PRODSING% y %PDETPLUR% %PRODPLUR%, %UNKNOWN% %prodsing%";
    EXPECT_EQ(ExpandVocabulary(text), "Este Producto y los Productos, %UNKNOWN% %prodsing%");
    EXPECT_EQ(text, "este Producto y los Productos, %UNKNOWN% %prodsing%");
    QString empty;
    EXPECT_EQ(ExpandVocabulary(empty), "");
    for (const char* gender : {"F", "f", "m", ""}) {
        ProdGender = gender;
        QString feminine = "%PPROSING% %PDETSING% %PDETPLUR%";
        EXPECT_EQ(ExpandVocabulary(feminine), "Esta la las") << gender;
    }
}

TEST_F(Vocabulary, CaptionsFollowTheKindOfTheirControl) {
    UseFeminine();
    QMainWindow form;
    QLabel label("detalles %PRODSING%", &form);
    label.setToolTip("%PRODSING%");
    QLineEdit box("%PRODSING%", &form);
    box.setToolTip("título de %PPROSING% %PRODSING%");
    box.setAccessibleName("referencia de %PRODSING%");
    QGroupBox group("ver %PRODPLUR%", &form);
    QMenu* menu = form.menuBar()->addMenu("&%PRODPLUR%");
    QAction* entry = menu->addAction("Bo&rrar %PRODSING%");
    QAction* button = form.addToolBar("bar")->addAction("web %PRODSING%");
    button->setToolTip("muestra %PPROSING% %PRODSING%");
    ApplyCaptions(&form);
    EXPECT_EQ(label.text(), "Detalles Vivienda");
    EXPECT_EQ(label.toolTip(), "%PRODSING%"); // thrown away on purpose
    EXPECT_EQ(box.text(), "%PRODSING%");      // the user's own text
    EXPECT_EQ(box.toolTip(), "Título de esta Vivienda");
    EXPECT_EQ(box.accessibleName(), "Referencia de Vivienda");
    EXPECT_EQ(group.title() + menu->title() + entry->text(),
              "Ver Viviendas&ViviendasBo&rrar Vivienda");
    EXPECT_EQ(button->text(), "web %PRODSING%"); // of a tool bar's button only the tip changes
    EXPECT_EQ(button->toolTip(), "Muestra esta Vivienda");
}

TEST_F(Vocabulary, TheLogoOfTheCompanyFollowsTheTradeOnItsFormAlone) {
    const std::tuple<const char*, const char*, const char*, bool> cases[] = {
        {"frmMain", "Logo del Colegio", "Logo", false},
        {"frmCorpInfo", "Logo del Colegio", "Logo del Colegio", false},
        {"frmCorpInfo", "[N/A]", "Logo", true},
    };
    for (const auto& [name, caption, shown, hidden] : cases) {
        QWidget form;
        form.setObjectName(name);
        QCheckBox logo("Logo", &form);
        logo.setObjectName("chkShowAPIlogo");
        LogoCaption = caption;
        ApplyCaptions(&form);
        EXPECT_EQ(logo.text(), shown);
        EXPECT_EQ(logo.isHidden(), hidden);
    }
}
