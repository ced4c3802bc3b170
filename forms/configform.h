// The configuration dialog: design, publishing, folders and password, portal account. Owns
// frmConfig.
#pragma once

#include "ui_configform.h"

#include "forms/dialog.h"

#include <vector>

class ConfigForm : public Dialog, public Ui::ConfigForm {
    Q_OBJECT

public:
    explicit ConfigForm(QWidget* parent);
    ~ConfigForm() override;

    // Shows page `index` and marks its tab, no more.
    void ShowTab(int index);

    // The name of a language's box goes on to its accessible name and that of its option.
    bool eventFilter(QObject* watched, QEvent* event) override;

    // Groups, by index.
    std::vector<QFrame*> fraTabs;
    std::vector<TabButton*> lblTab;
    std::vector<QToolButton*> imgTab;
    std::vector<QWidget*> fraMain;
    std::vector<QRadioButton*> optColorSet;
    std::vector<QToolButton*> lblColorSet;
    std::vector<ColorSwatch*> shpColors1; // the three colours of a set
    std::vector<ColorSwatch*> shpColors2;
    std::vector<ColorSwatch*> shpColors3;
    std::vector<QPushButton*> cmdTemplates;
    std::vector<QCheckBox*> chkLang;
    std::vector<QRadioButton*> optDefaultLang;
    std::vector<QRadioButton*> optStorageMethod;
    std::vector<QPushButton*> cmdBrowseDir;
    std::vector<QPushButton*> cmdTools;
    std::vector<QLabel*> lblHelp; // 0 to 2, texts; lblHelp_3 is the link
};

// The open dialog, or null: set by its constructor, cleared by its destructor.
extern ConfigForm* frmConfig;
