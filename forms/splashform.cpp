#include "forms/splashform.h"

#include "forms/look.h"

SplashForm* frmSplash = nullptr;

namespace {

constexpr int kSplashTime = 1500; // milliseconds

} // namespace

SplashForm::SplashForm()
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint), tmrByeSplash(new QTimer(this)) {
    setupUi(this);
    frmSplash = this;
    imgSplash->setPixmap(DrawPicture("splash", imgSplash->minimumSize(), devicePixelRatioF()));
    DressForm(this);
    tmrByeSplash->setSingleShot(true);
    tmrByeSplash->start(kSplashTime);
}

SplashForm::~SplashForm() {
    frmSplash = nullptr;
}
