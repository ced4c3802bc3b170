// The picture album of the open product. Owns frmPictures.
#pragma once

#include "ui_picturesform.h"

#include "forms/dialog.h"

#include <vector>

// Keys of the buttons of tlbPicture.
inline constexpr QLatin1StringView kPictureAdd("Add");
inline constexpr QLatin1StringView kPictureDel("Del");
inline constexpr QLatin1StringView kPictureChange("Change");
inline constexpr QLatin1StringView kPictureMoveUp("MoveUp");
inline constexpr QLatin1StringView kPictureMoveDn("MoveDn");

class PicturesForm : public Dialog, public Ui::PicturesForm {
    Q_OBJECT

public:
    explicit PicturesForm(QWidget* parent);
    ~PicturesForm() override;

    // Button of tlbPicture by its key; null for a text that is none.
    QAction* Button(const QString& key) const;

    // Groups, by index.
    std::vector<QFrame*> fraPicPreview;     // eight slots: the whole,
    std::vector<QFrame*> shpPicPreview;     // its frame, with the look flag "selected",
    std::vector<PictureBox*> imgPicPreview; // the thumbnail,
    std::vector<QLabel*> lblPictureNum;     // the number,
    std::vector<ClickArea*> lblClickArea;   // and what is clicked and dragged
    std::vector<QWidget*> txtMLFields;      // 0 line, 1 text
    std::vector<QToolButton*> optLang;
    std::vector<QToolButton*> lblLangScroll;
};

// The open dialog, or null: set by its constructor, cleared by its destructor.
extern PicturesForm* frmPictures;
