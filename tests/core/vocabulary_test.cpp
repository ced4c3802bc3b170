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
#include <QToolButton>
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

TEST_F(Vocabulary, MessagesAreExpandedAndCapitalised) {
    BuildMessages();
    EXPECT_EQ(Messages[0], "Este Producto tiene %1 fotografias asociadas");
    EXPECT_EQ(Messages[7], " fotografías por Producto"); // begins with a blank
    EXPECT_EQ(Messages[11], "Información de Producto: ");
    EXPECT_EQ(Messages[14], " Productos en Portada.");
    EXPECT_EQ(Messages[17], "Seleccione la Carpeta en la que normalmente almacena las "
                            "Fotografías de Productos:");
    UseFeminine();
    BuildMessages();
    EXPECT_EQ(Messages[3], "¿Confirma que desea eliminar todos los datos de esta Vivienda?");
    EXPECT_EQ(Messages[5], "La Vivienda acaba de ser eliminado por otro usuario");
}

TEST_F(Vocabulary, CaptionsFollowTheKindOfTheirControl) {
    UseFeminine();
    QMainWindow form;
    form.setObjectName("frmOther");
    QLabel label("detalles %PRODSING%", &form);
    label.setToolTip("%PRODSING%");
    QLineEdit box("%PRODSING%", &form);
    box.setToolTip("título de %PPROSING% %PRODSING%");
    box.setAccessibleName("referencia de %PRODSING%");
    QGroupBox group("ver %PRODPLUR%", &form);
    QCheckBox check("%PDETPLUR% %PRODPLUR%", &form);
    QMenu* menu = form.menuBar()->addMenu("&%PRODPLUR%");
    QAction* entry = menu->addAction("Bo&rrar %PRODSING%");
    QToolBar* bar = form.addToolBar("bar");
    QAction* button = bar->addAction("web %PRODSING%");
    button->setToolTip("muestra %PPROSING% %PRODSING%");
    QMenu drop;
    QAction* dropped = drop.addAction("ficha de %PRODSING%");
    drop.setParent(bar);
    ApplyCaptions(&form);
    EXPECT_EQ(label.text(), "Detalles Vivienda");
    EXPECT_EQ(label.toolTip(), "%PRODSING%"); // thrown away on purpose
    EXPECT_EQ(box.text(), "%PRODSING%");      // the user's own text
    EXPECT_EQ(box.toolTip(), "Título de esta Vivienda");
    EXPECT_EQ(box.accessibleName(), "Referencia de Vivienda");
    EXPECT_EQ(group.title(), "Ver Viviendas");
    EXPECT_EQ(check.text(), "Las Viviendas");
    EXPECT_EQ(menu->title(), "&Viviendas");
    EXPECT_EQ(entry->text(), "Bo&rrar Vivienda");
    EXPECT_EQ(button->text(), "web %PRODSING%"); // of a tool bar's button only the tip changes
    EXPECT_EQ(button->toolTip(), "Muestra esta Vivienda");
    EXPECT_EQ(dropped->text(), "Ficha de Vivienda");
}

TEST_F(Vocabulary, CategoryAndLogoFollowOnTheirForms) {
    QWidget form;
    QLabel zone("Zona:", &form);
    zone.setObjectName("lblZone");
    QLineEdit box(&form);
    box.setObjectName("txtZone");
    QCheckBox logo("Logo", &form);
    logo.setObjectName("chkShowAPIlogo");
    form.setObjectName("frmMain");
    ApplyCaptions(&form);
    EXPECT_EQ(zone.text(), "Categoría:");
    EXPECT_EQ(box.toolTip(), CategoryTip); // as it stands
    EXPECT_EQ(logo.text(), "Logo");

    form.setObjectName("frmCorpInfo");
    LogoCaption = "Logo del Colegio";
    ApplyCaptions(&form);
    EXPECT_EQ(logo.text(), "Logo del Colegio");
    EXPECT_FALSE(logo.isHidden());
    LogoCaption = "[N/A]";
    ApplyCaptions(&form);
    EXPECT_EQ(logo.text(), "Logo del Colegio");
    EXPECT_TRUE(logo.isHidden());
}
