// The splash: program title and version over a picture while the catalogue is being opened. Owns
// frmSplash.
#pragma once

#include "ui_splashform.h"

#include <QTimer>

class SplashForm : public QWidget, public Ui::SplashForm {
    Q_OBJECT

public:
    SplashForm();
    ~SplashForm() override;

    QTimer* tmrByeSplash; // 1,500 ms, runs from the moment the splash is made, fires once
};

// The one splash: set by its constructor, cleared by its destructor.
extern SplashForm* frmSplash;
