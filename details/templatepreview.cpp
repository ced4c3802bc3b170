#include "details/templatepreview.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "images/picturefile.h"
#include "platform/controls.h"
#include "platform/dialogs.h"
#include "site/styles.h"
#include "site/template.h"
#include "site/transforms.h"

#include <QFileInfo>
#include <QLabel>

namespace {

void ShowOpenError() {
    MsgBox("Se ha producido un error al abrir la plantilla de diseño", BoxIcon::Warning, AppName);
}

void ShowText(QWidget* control, const QString& text) {
    if (auto* label = qobject_cast<QLabel*>(control)) {
        label->setTextFormat(Qt::PlainText);
        label->setText(text);
    } else if (control != nullptr) {
        SetControlText(control, text);
    }
}

void ShowIdentity(const TemplateHeaderRecord& header, QWidget* nameLabel, QWidget* descriptionLabel,
                  QWidget* maxEmphLabel) {
    // The sum is a byte, as the generator counts it.
    const auto maxEmph = quint8(header.MaxEmph1 + header.MaxEmph2);
    ShowText(nameLabel, TrimBlanks(header.Name));
    ShowText(descriptionLabel, TrimBlanks(header.Description));
    ShowText(maxEmphLabel, QString::number(maxEmph));
}

// Throws PictureError.
void ShowPreview(const TemplateContent& design, QLabel* previewImage, int number,
                 const QString& path) {
    const std::vector<int> previews = AllSections(kKindPreview, design.Sections);
    const int index = qMax(number, 1) - 1;
    if (number < 0 || index >= int(previews.size())) {
        previewImage->clear();
        return;
    }
    const QSize needed = previewImage->size() * previewImage->devicePixelRatioF();
    const DecodedPicture picture =
        ReadPictureBytes(design.Bodies[previews[index]], QFileInfo(path).fileName(), needed);
    previewImage->setPixmap(QPixmap::fromImage(picture.image));
}

void ShowColorSets(const TemplateContent& design, QWidget* stylesValue) {
    const int section = FindSection(kKindColorSets, design.Sections);
    if (section != kNoSection && stylesValue != nullptr) {
        SetControlText(stylesValue, ReadColorSets(design.Bodies[section]));
    }
}

} // namespace

bool LoadTemplatePreview(const QString& path, QWidget* nameLabel, QWidget* descriptionLabel,
                         QWidget* maxEmphLabel, QWidget* stylesValue, QLabel* previewImage,
                         int previewNumber) {
    TemplateContent design;
    if (path.isEmpty() || !QFileInfo(path).isFile() || !ReadTemplateFile(path, design)) {
        return false;
    }
    const int words = FindSection(kKindLanguages, design.Sections);
    SetTemplateLangs(words == kNoSection ? QString() : TrimBlanks(design.Sections[words].Name));
    ShowIdentity(design.Header, nameLabel, descriptionLabel, maxEmphLabel);
    try {
        ShowPreview(design, previewImage, previewNumber, path);
        ShowColorSets(design, stylesValue);
    } catch (const PictureError&) {
        ShowOpenError();
    }
    return true;
}
