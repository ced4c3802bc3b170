#include "forms/corpinfoform.h"

#include "forms/assistpanel.h"
#include "forms/groups.h"
#include "forms/look.h"

CorpInfoForm* frmCorpInfo = nullptr;

CorpInfoForm::CorpInfoForm(QWidget* parent) : Dialog(parent) {
    setupUi(this);
    frmCorpInfo = this;
    fraTabs = GatherGroup<QFrame>(this, "fraTabs");
    lblTab = GatherGroup<TabButton>(this, "lblTab");
    imgTab = GatherGroup<QToolButton>(this, "imgTab");
    fraMain = GatherGroup<QWidget>(this, "fraMain");
    imgPicture = GatherGroup<PictureBox>(this, "imgPicture");
    txtPicturePath = GatherGroup<QLineEdit>(this, "txtPicturePath");
    cmdBrowse = GatherGroup<QPushButton>(this, "cmdBrowse");
    cmdDelete = GatherGroup<QPushButton>(this, "cmdDelete");
    txtMLFields = GatherGroup<QWidget>(this, "txtMLFields");
    cmdPreview = GatherGroup<QPushButton>(this, "cmdPreview");
    txtMRInfo = GatherGroup<QLineEdit>(this, "txtMRInfo");
    optLang = GatherGroup<QToolButton>(this, "optLang");
    lblLangScroll = GatherGroup<QToolButton>(this, "lblLangScroll");
    SetEscapeButton(cmdCancel);
    DressForm(this);
    FollowTips(optLang);
    KeepTextWidth(shpLangAssist, lblToTranslate);
    ShowTab(0);
}

CorpInfoForm::~CorpInfoForm() {
    frmCorpInfo = nullptr;
}

void CorpInfoForm::ShowTab(int index) {
    ShowTabPage(fraTabs, lblTab, fraMain, index);
}
