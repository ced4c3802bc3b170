#include "core/vocabulary.h"

#include "core/flavour.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

std::array<QString, kMessageCount> Messages;

namespace {

// By Message.
constexpr std::array<const char*, kMessageCount> kTemplates{
    "%PPROSING% %PRODSING% tiene %1 fotografias asociadas",
    "%PRODPLUR% Anunciados:   %1",
    "%PRODPLUR% Destacados:   %1",
    "¿Confirma que desea eliminar todos los datos de %PPROSING% %PRODSING%?",
    "Confirmación de Borrar %PRODSING%",
    "%PDETSING% %PRODSING% acaba de ser eliminado por otro usuario",
    "%PPROSING% %PRODSING% ya no existe",
    " fotografías por %PRODSING%",
    "Vista Previa de la Ficha de %PRODSING%",
    "No es posible imprimir la Ficha de %PPROSING% %PRODSING%",
    "Imprimir la Ficha de %PRODSING%",
    "Información de %PRODSING%: ",
    "No es posible enviar por E-mail la Ficha de %PPROSING% %PRODSING%",
    "Enviar por e-mail la Ficha de %PRODSING%",
    " %PRODPLUR% en Portada.",
    "¿Desea quitar de Portada el anuncio más antiguo y substituirlo por %PDETSING% %PRODSING% "
    "actual?",
    "Es necesaria una Referencia que identifique %PDETSING% %PRODSING% de manera única",
    "Seleccione la Carpeta en la que normalmente almacena las Fotografías de %PRODPLUR%:",
};

constexpr char kMasculine[] = "M";
constexpr char kMainForm[] = "frmMain";
constexpr char kCompanyForm[] = "frmCorpInfo";

QString Expanded(QString text) {
    return ExpandVocabulary(text);
}

void ExpandToolTip(QWidget* control) {
    if (!control->toolTip().isEmpty()) {
        control->setToolTip(Expanded(control->toolTip()));
    }
}

// Only the screen reader sees it; it follows the caption that it stands for.
void ExpandAccessibleName(QWidget* control) {
    if (control->accessibleName().contains(u'%')) {
        control->setAccessibleName(Expanded(control->accessibleName()));
    }
}

// The toolkit's own widgets inside a tool bar only mirror its actions.
bool IsInsideToolBar(const QWidget* control) {
    return qobject_cast<const QToolBar*>(control->parentWidget()) != nullptr;
}

void ApplyToControl(QWidget* control) {
    ExpandAccessibleName(control);
    if (auto* label = qobject_cast<QLabel*>(control)) {
        if (!label->text().isEmpty()) {
            label->setText(Expanded(label->text()));
        }
        return;
    }
    if (auto* button = qobject_cast<QAbstractButton*>(control)) {
        if (!button->text().isEmpty()) {
            button->setText(Expanded(button->text()));
        }
    } else if (auto* group = qobject_cast<QGroupBox*>(control)) {
        group->setTitle(Expanded(group->title()));
    }
    ExpandToolTip(control);
}

// An entry of a menu shows its text, a button of a tool bar its tool tip.
void ApplyToAction(QAction* action) {
    bool inMenu = action->menu() != nullptr;
    bool inToolBar = false;
    for (const QObject* place : action->associatedObjects()) {
        inMenu = inMenu || qobject_cast<const QMenu*>(place) != nullptr ||
                 qobject_cast<const QMenuBar*>(place) != nullptr;
        inToolBar = inToolBar || qobject_cast<const QToolBar*>(place) != nullptr;
    }
    if (inMenu && !action->text().isEmpty()) {
        action->setText(Expanded(action->text()));
    }
    if (inToolBar && !action->toolTip().isEmpty()) {
        action->setToolTip(Expanded(action->toolTip()));
    }
}

void ApplyCategory(const QWidget* form) {
    if (auto* label = form->findChild<QLabel*>("lblZone")) {
        label->setText(CategoryCaption + u':');
    }
    if (auto* box = form->findChild<QWidget*>("txtZone")) {
        box->setToolTip(CategoryTip);
    }
}

void ApplyLogo(const QWidget* form) {
    auto* box = form->findChild<QAbstractButton*>("chkShowAPIlogo");
    if (box == nullptr) {
        return;
    }
    if (HasLogoBox()) {
        box->setText(LogoCaption);
    } else {
        box->hide();
    }
}

} // namespace

QString ExpandVocabulary(QString& text) {
    const bool isMasculine = ProdGender == QLatin1String(kMasculine);
    text.replace("%PRODSING%", ProdSing);
    text.replace("%PRODPLUR%", ProdPlur);
    text.replace("%PPROSING%", isMasculine ? "este" : "esta");
    text.replace("%PDETSING%", isMasculine ? "el" : "la");
    text.replace("%PDETPLUR%", isMasculine ? "los" : "las");
    return text.left(1).toUpper() + text.mid(1);
}

void ApplyCaptions(QWidget* form) {
    const QList<QWidget*> controls = form->findChildren<QWidget*>();
    for (QWidget* control : controls) {
        if (!IsInsideToolBar(control)) {
            ApplyToControl(control);
        }
    }
    const QList<QAction*> actions = form->findChildren<QAction*>();
    for (QAction* action : actions) {
        ApplyToAction(action);
    }
    if (form->objectName() == QLatin1String(kMainForm)) {
        ApplyCategory(form);
    } else if (form->objectName() == QLatin1String(kCompanyForm)) {
        ApplyLogo(form);
    }
}

void BuildMessages() {
    for (int index = 0; index < kMessageCount; ++index) {
        Messages[index] = Expanded(QString::fromUtf8(kTemplates[index]));
    }
}
