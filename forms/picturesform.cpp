#include "forms/picturesform.h"

#include "forms/assistpanel.h"
#include "forms/groups.h"
#include "forms/look.h"
#include "forms/toolbuttons.h"

#include <QPixmap>

PicturesForm* frmPictures = nullptr;

namespace {

constexpr QSize kBuiltInPicture(320, 240); // pixels of the pictures of an empty and a broken slot

} // namespace

PicturesForm::PicturesForm(QWidget* parent) : Dialog(parent) {
    setupUi(this);
    frmPictures = this;
    fraPicPreview = GatherGroup<QFrame>(this, "fraPicPreview");
    shpPicPreview = GatherGroup<QFrame>(this, "shpPicPreview");
    imgPicPreview = GatherGroup<PictureBox>(this, "imgPicPreview");
    lblPictureNum = GatherGroup<QLabel>(this, "lblPictureNum");
    lblClickArea = GatherGroup<ClickArea>(this, "lblClickArea");
    txtMLFields = GatherGroup<QWidget>(this, "txtMLFields");
    optLang = GatherGroup<QToolButton>(this, "optLang");
    lblLangScroll = GatherGroup<QToolButton>(this, "lblLangScroll");
    DressForm(this);
    imgEmpty->setPixmap(DrawPicture("empty", kBuiltInPicture, 1));
    imgError->setPixmap(DrawPicture("broken", kBuiltInPicture, 1));
    MakeButtonsReachable(tlbPicture, nullptr, lblClickArea.front());
    FollowTips(optLang);
    KeepTextWidth(shpLangAssist, lblToTranslate);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
}

PicturesForm::~PicturesForm() {
    frmPictures = nullptr;
}

QAction* PicturesForm::Button(const QString& key) const {
    return findChild<QAction*>("tlbPicture_" + key);
}
