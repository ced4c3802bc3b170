// What a design looks like before it is used: its title, description, limits, colour sets and
// preview picture, shown in the controls of whatever screen asks.
#pragma once

#include <QString>

class QLabel;
class QWidget;

// Reads the design at `path`, apart from the one that a run works with, and fills the controls,
// labels or text boxes; any of them but `previewImage` may be null. `maxEmphLabel` gets the number
// of products that can be emphasised, `stylesValue` the colour sets joined by "|". The preview with
// that number, counted from 1 (0 is the first), becomes the picture of `previewImage`, which fits
// it into its size; without one the picture is cleared. Sets TemplateLangs.
//
// False when `path` is empty or there is no such file, silently, and after the required warning box
// when the file is no design. A preview that is no picture is told by a box; the result is true,
// but `stylesValue` stays as it was.
bool LoadTemplatePreview(const QString& path, QWidget* nameLabel, QWidget* descriptionLabel,
                         QWidget* maxEmphLabel, QWidget* stylesValue, QLabel* previewImage,
                         int previewNumber);
