#include "details/languages.h"

#include "core/settings.h"
#include "engine/storeerror.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "store/languages.h"
#include "store/langvalues.h"

#include <QFile>
#include <QIcon>
#include <QToolButton>

bool LangButtonsReady = true;

namespace {

void DressButton(QToolButton* button, const QString& code) {
    const QString caption = LanguageCaption(code);
    SetTag(button, code);
    const QString flag = QStringLiteral(":/flags/%1.svg").arg(code);
    button->setIcon(QFile::exists(flag) ? QIcon(flag) : QIcon());
    button->setText(code); // shown where there is no flag
    button->setToolTip(caption);
    button->setAccessibleName(caption.isEmpty() ? code : caption);
    button->setVisible(!code.isEmpty());
}

// None is down where the language in use isn't among them: buttons that exclude each other would
// keep the last one down.
void MarkLanguage(const std::vector<QToolButton*>& optLang) {
    for (QToolButton* button : optLang) {
        button->setAutoExclusive(false);
        button->setChecked(!Tag(button).isEmpty() && Tag(button) == UICurrentLang);
    }
    for (QToolButton* button : optLang) {
        button->setAutoExclusive(true);
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
    MarkLanguage(optLang);
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
