#include "config/designpage.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "details/templatepreview.h"
#include "forms/configform.h"
#include "forms/look.h"
#include "platform/controls.h"
#include "platform/dialogs.h"
#include "store/languages.h"
#include "store/store.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr char kDesignFilter[] = "Plantillas de Diseño|*.zdt";

constexpr int kMostLanguages = 4;
constexpr int kColorsPerSet = 3;

// Shows the design at `path` and everything that it says of itself.
void ShowDesign(ConfigForm& form, const QString& path) {
    form.txtColorSets->clear();
    LoadTemplatePreview(path, form.txtTemplName, nullptr, form.txtTemplMaxEmph, form.txtColorSets,
                        form.imgTemplPreview, 1);
    form.txtTemplCustPath->setText(QFileInfo(path).fileName());
}

QColor SwatchColor(const QString& hexadecimal) {
    // The last two digits are red: designs say their colours in this order (docs/designs.md).
    bool number = false;
    const uint value = hexadecimal.trimmed().toUInt(&number, 16);
    return number ? QColor(value & 0xFF, value >> 8 & 0xFF, value >> 16 & 0xFF) : QColor();
}

void ShowColorSet(ConfigForm& form, std::size_t set, const QStringList& colors) {
    const bool exists = !colors.isEmpty();
    const std::array<ColorSwatch*, kColorsPerSet> swatches = {
        form.shpColors1[set], form.shpColors2[set], form.shpColors3[set]};
    for (int color = 0; color < kColorsPerSet; ++color) {
        swatches[color]->setVisible(exists);
        swatches[color]->SetColor(SwatchColor(colors.value(color)));
    }
    form.optColorSet[set]->setVisible(exists);
    form.lblColorSet[set]->setVisible(exists);
}

void txtColorSets_Change(ConfigForm& form) {
    const QString sets = form.txtColorSets->text();
    form.fraColors->setVisible(!sets.trimmed().isEmpty());
    if (sets.trimmed().isEmpty()) {
        return;
    }
    const QStringList colors = sets.split(u'|');
    for (std::size_t set = 0; set < form.optColorSet.size(); ++set) {
        ShowColorSet(form, set,
                     qsizetype(set) < colors.size() ? colors[qsizetype(set)].split(u',')
                                                    : QStringList());
    }
    form.optColorSet[0]->setChecked(true);
}

void lstTemplate_Click(ConfigForm& form) {
    const QListWidgetItem* item = form.lstTemplate->currentItem();
    if (item == nullptr) {
        return;
    }
    const auto colorSet = static_cast<std::size_t>(ChosenColorSet(form));
    form.txtTemplPath->setText(DBpath + item->data(Qt::UserRole).toString());
    form.optColorSet[colorSet]->setChecked(true);
}

void txtTemplPath_Change(ConfigForm& form) {
    if (form.txtTemplPath->text().isEmpty() || !StoreOpen) {
        return;
    }
    form.optColorSet[0]->setChecked(true);
    ShowDesign(form, form.txtTemplPath->text());
    ShowTemplateLanguages(form);
}

int TickedCount(const ConfigForm& form) {
    return static_cast<int>(std::count_if(form.chkLang.begin(), form.chkLang.end(),
                                          [](const QCheckBox* box) { return box->isChecked(); }));
}

void EnableLanguages(ConfigForm& form) {
    const bool full = TickedCount(form) >= kMostLanguages;
    for (std::size_t k = 0; k < form.chkLang.size(); ++k) {
        const bool ticked = form.chkLang[k]->isChecked();
        form.chkLang[k]->setEnabled(!full || ticked);
        form.optDefaultLang[k]->setEnabled(ticked);
        form.optDefaultLang[k]->setVisible(ticked);
    }
}

void chkLang_Click(ConfigForm& form, std::size_t k) {
    if (TickedCount(form) == 0) {
        MsgBox("Es necesario seleccionar al menos un idioma", BoxIcon::Warning, AppName);
        form.chkLang[k]->setChecked(true);
    }
    const bool defaultGone = form.optDefaultLang[k]->isChecked() && !form.chkLang[k]->isChecked();
    EnableLanguages(form);
    if (!defaultGone) {
        return;
    }
    for (QRadioButton* option : form.optDefaultLang) {
        if (option->isEnabled()) {
            option->setChecked(true);
            break;
        }
    }
}

void ShowLanguage(ConfigForm& form, std::size_t k, const QString& code) {
    SetTag(form.chkLang[k], code);
    form.chkLang[k]->setIcon(FlagIcon(code));
    form.chkLang[k]->setToolTip(LanguageCaption(code)); // the accessible names follow it
    form.chkLang[k]->setVisible(!code.isEmpty());
    form.chkLang[k]->setChecked(!code.isEmpty() && UserLangs.contains(code));
    if (!code.isEmpty() && code == DefaultLang) {
        form.optDefaultLang[k]->setChecked(true);
    }
}

} // namespace

void FillDesignPage(ConfigForm& form) {
    const QString pattern = QString(kDesignFilter).section(u'|', 1, 1);
    const QStringList designs = QDir(DBpath).entryList({pattern}, QDir::Files, QDir::Name);
    for (const QString& design : designs) {
        ShowDesign(form, DBpath + design);
        const QString title = form.txtTemplName->text();
        auto* item = new QListWidgetItem(title.isEmpty() ? design : title, form.lstTemplate);
        item->setData(Qt::UserRole, design);
    }
    {
        const QSignalBlocker quiet(form.lstTemplate);
        form.lstTemplate->setCurrentRow(TemplateNum);
    }
    form.txtTemplPath->setText(TemplPath);
    form.txtTemplMaxEmph->setText(QString::number(TemplMaxEmph));
    if (TemplColorSet >= 0 && TemplColorSet < static_cast<int>(form.optColorSet.size())) {
        form.optColorSet[static_cast<std::size_t>(TemplColorSet)]->setChecked(true);
    }
    if (StoreOpen) {
        ShowTemplateLanguages(form);
    }
}

void ConnectDesignPage(ConfigForm& form) {
    QObject::connect(form.lstTemplate, &QListWidget::currentRowChanged, &form,
                     [&form] { lstTemplate_Click(form); });
    QObject::connect(form.txtTemplPath, &QLineEdit::textChanged, &form,
                     [&form] { txtTemplPath_Change(form); });
    QObject::connect(form.txtColorSets, &QLineEdit::textChanged, &form,
                     [&form] { txtColorSets_Change(form); });
    for (std::size_t set = 0; set < form.lblColorSet.size(); ++set) {
        QObject::connect(form.lblColorSet[set], &QAbstractButton::clicked, &form,
                         [&form, set] { form.optColorSet[set]->setChecked(true); });
    }
    for (std::size_t k = 0; k < form.chkLang.size(); ++k) {
        QObject::connect(form.chkLang[k], &QCheckBox::clicked, &form,
                         [&form, k] { chkLang_Click(form, k); });
    }
}

int ChosenColorSet(const ConfigForm& form) {
    for (std::size_t set = 0; set < form.optColorSet.size(); ++set) {
        if (form.optColorSet[set]->isChecked()) {
            return static_cast<int>(set);
        }
    }
    return 0;
}

LanguageChoice ChosenLanguages(const ConfigForm& form) {
    QStringList codes;
    QString defaultLang;
    for (std::size_t k = 0; k < form.chkLang.size(); ++k) {
        if (form.chkLang[k]->isChecked()) {
            codes += Tag(form.chkLang[k]);
        }
        if (form.optDefaultLang[k]->isChecked()) {
            defaultLang = Tag(form.chkLang[k]);
        }
    }
    if (!codes.contains(defaultLang)) {
        defaultLang = codes.value(0);
    }
    return {codes.join(kLanguageSeparator), defaultLang};
}

void ShowTemplateLanguages(ConfigForm& form) {
    if (!TemplateLangs.isEmpty() && !TemplateLangs.contains(kLanguageSeparator)) {
        SetUserLangs(TemplateLangs, TemplateLangs);
    }
    const QStringList codes = TemplateLangs.split(kLanguageSeparator);
    for (std::size_t k = 0; k < form.chkLang.size(); ++k) {
        ShowLanguage(form, k, codes.value(qsizetype(k)));
    }
    EnableLanguages(form);
}
