// The company: its data, pictures, texts and registry entry. Owns frmCorpInfo.
#pragma once

#include "ui_corpinfoform.h"

#include "forms/dialog.h"

#include <vector>

// Places in the groups of the form.
enum CompanyPicture { kPictureLogo = 0, kPictureOffices = 1, kPictureMap = 2 }; // of imgPicture
enum CompanyPreview { kPreviewAboutUs = 0, kPreviewFindUs = 1 };                // of cmdPreview

class CorpInfoForm : public Dialog, public Ui::CorpInfoForm {
    Q_OBJECT

public:
    explicit CorpInfoForm(QWidget* parent);
    ~CorpInfoForm() override;

    // Shows page `index` and marks its tab, no more.
    void ShowTab(int index);

    // Groups, by index.
    std::vector<QFrame*> fraTabs;
    std::vector<TabButton*> lblTab;
    std::vector<QToolButton*> imgTab;
    std::vector<QWidget*> fraMain;
    std::vector<PictureBox*> imgPicture;    // by CompanyPicture; likewise
    std::vector<QLineEdit*> txtPicturePath; // the hidden name of its file
    std::vector<QPushButton*> cmdBrowse;    // and its two buttons
    std::vector<QPushButton*> cmdDelete;
    std::vector<QWidget*>
        txtMLFields; // 0 comment, 1 place and hours (texts), 2 to 4 titles (lines)
    std::vector<QPushButton*> cmdPreview;
    std::vector<QLineEdit*> txtMRInfo;
    std::vector<QToolButton*> optLang;
    std::vector<QToolButton*> lblLangScroll;
};

// The open dialog, or null: set by its constructor, cleared by its destructor.
extern CorpInfoForm* frmCorpInfo;
