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

void ShowIdentity(QWidget* nameLabel, QWidget* descriptionLabel, QWidget* maxEmphLabel) {
    // The sum is a byte, as the generator counts it.
    const auto maxEmph = quint8(TemplateHeader.MaxEmph1 + TemplateHeader.MaxEmph2);
    ShowText(nameLabel, TrimBlanks(TemplateHeader.Name));
    ShowText(descriptionLabel, TrimBlanks(TemplateHeader.Description));
    ShowText(maxEmphLabel, QString::number(maxEmph));
}

// Throws PictureError.
void ShowPreview(QLabel* previewImage, int number, const QString& path) {
    const std::vector<int> previews = AllSections(kKindPreview);
    const int index = qMax(number, 1) - 1;
    if (number < 0 || index >= int(previews.size())) {
        previewImage->clear();
        return;
    }
    const QSize needed = previewImage->size() * previewImage->devicePixelRatioF();
    const DecodedPicture picture =
        ReadPictureBytes(SectionBodies[previews[index]], QFileInfo(path).fileName(), needed);
    previewImage->setPixmap(QPixmap::fromImage(picture.image));
}

void ShowColorSets(QWidget* stylesValue) {
    const int section = FindSection(kKindColorSets);
    if (section != kNoSection && stylesValue != nullptr) {
        SetControlText(stylesValue, ReadColorSets(SectionBodies[section]));
    }
}

} // namespace

bool LoadTemplatePreview(const QString& path, QWidget* nameLabel, QWidget* descriptionLabel,
                         QWidget* maxEmphLabel, QWidget* stylesValue, QLabel* previewImage,
                         int previewNumber) {
    const KeptTemplate kept;
    if (path.isEmpty() || !QFileInfo(path).isFile() || !LoadTemplateFile(path)) {
        return false;
    }
    const int words = FindSection(kKindLanguages);
    SetTemplateLangs(words == kNoSection ? QString() : TrimBlanks(TemplateSections[words].Name));
    ShowIdentity(nameLabel, descriptionLabel, maxEmphLabel);
    try {
        ShowPreview(previewImage, previewNumber, path);
        ShowColorSets(stylesValue);
    } catch (const PictureError&) {
        ShowOpenError();
    }
    return true;
}
