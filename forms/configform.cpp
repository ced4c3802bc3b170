#include "forms/configform.h"

#include "forms/groups.h"
#include "forms/look.h"

ConfigForm* frmConfig = nullptr;

ConfigForm::ConfigForm(QWidget* parent) : Dialog(parent) {
    setupUi(this);
    frmConfig = this;
    fraTabs = GatherGroup<QFrame>(this, "fraTabs");
    lblTab = GatherGroup<TabButton>(this, "lblTab");
    imgTab = GatherGroup<QToolButton>(this, "imgTab");
    fraMain = GatherGroup<QWidget>(this, "fraMain");
    optColorSet = GatherGroup<QRadioButton>(this, "optColorSet");
    lblColorSet = GatherGroup<QToolButton>(this, "lblColorSet");
    shpColors1 = GatherGroup<ColorSwatch>(this, "shpColors1");
    shpColors2 = GatherGroup<ColorSwatch>(this, "shpColors2");
    shpColors3 = GatherGroup<ColorSwatch>(this, "shpColors3");
    cmdTemplates = GatherGroup<QPushButton>(this, "cmdTemplates");
    chkLang = GatherGroup<QCheckBox>(this, "chkLang");
    optDefaultLang = GatherGroup<QRadioButton>(this, "optDefaultLang");
    optStorageMethod = GatherGroup<QRadioButton>(this, "optStorageMethod");
    cmdBrowseDir = GatherGroup<QPushButton>(this, "cmdBrowseDir");
    cmdTools = GatherGroup<QPushButton>(this, "cmdTools");
    lblHelp = GatherGroup<QLabel>(this, "lblHelp");
    // The options of a group stand in different frames or beside boxes that come and go.
    MakeExclusive(this, {optColorSet.begin(), optColorSet.end()});
    MakeExclusive(this, {optDefaultLang.begin(), optDefaultLang.end()});
    MakeExclusive(this, {optStorageMethod.begin(), optStorageMethod.end()});
    for (QCheckBox* box : chkLang) {
        box->installEventFilter(this);
    }
    SetEscapeButton(cmdCancel);
    DressForm(this);
    ShowTab(0);
}

ConfigForm::~ConfigForm() {
    frmConfig = nullptr;
}

void ConfigForm::ShowTab(int index) {
    ShowTabPage(fraTabs, lblTab, fraMain, index);
}

bool ConfigForm::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ToolTipChange) {
        for (size_t language = 0; language < chkLang.size(); ++language) {
            if (watched == chkLang[language]) {
                const QString name = chkLang[language]->toolTip();
                chkLang[language]->setAccessibleName(name);
                optDefaultLang[language]->setAccessibleName(lblDefaultLang->text() + " " + name);
            }
        }
    }
    return Dialog::eventFilter(watched, event);
}
