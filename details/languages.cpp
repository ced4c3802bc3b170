#include "details/languages.h"

#include "core/settings.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "platform/storeerror.h"
#include "store/languages.h"
#include "store/langvalues.h"

#include <QIcon>
#include <QToolButton>

bool LangButtonsReady = true;

namespace {

void DressButton(QToolButton* button, const QString& code) {
    const QString caption = LanguageCaption(code);
    SetTag(button, code);
    button->setIcon(code.isEmpty() ? QIcon() : QIcon(QStringLiteral(":/flags/%1.svg").arg(code)));
    button->setToolTip(caption);
    button->setAccessibleName(caption.isEmpty() ? code : caption);
    button->setVisible(!code.isEmpty());
    button->setChecked(!code.isEmpty() && code == UICurrentLang);
}

void MarkLanguage(const std::vector<QToolButton*>& optLang) {
    for (QToolButton* button : optLang) {
        button->setChecked(Tag(button) == UICurrentLang);
    }
}

void optLang_Click(const QToolButton* button) {
    if (!LangButtonsReady || Tag(button) == UICurrentLang) {
        return;
    }
    try {
        SaveProductLangIfChanged();
    } catch (const StoreError&) {
        MarkLanguage(frmMain->optLang); // the texts on screen stay those of the old language
        throw;
    }
    SetUICurrentLang(Tag(button));
    LoadProductLangValues();
}

} // namespace

void ArrangeLangButtons(QWidget* fraLang, const std::vector<QToolButton*>& optLang) {
    LangButtonsReady = false;
    const QStringList codes = UserLangs.split(kLanguageSeparator);
    for (qsizetype i = 0; i < static_cast<qsizetype>(optLang.size()); ++i) {
        DressButton(optLang[i], i < codes.size() ? codes[i] : QString());
    }
    fraLang->setVisible(UserLangs.contains(kLanguageSeparator));
    LangButtonsReady = true;
}

void ConnectLangButtons() {
    for (QToolButton* button : frmMain->optLang) {
        QObject::connect(button, &QToolButton::clicked, frmMain,
                         [button] { optLang_Click(button); });
    }
}

void ReturnToLanguage(const QString& lang) {
    SetUICurrentLang(lang);
    LoadProductLangValues();
}
