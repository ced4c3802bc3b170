#include "site/weblangs.h"

#include "core/settings.h"
#include "site/template.h"
#include "site/transforms.h"
#include "text/ansi.h"

#include <stdexcept>
#include <vector>

QStringList WebLangs;

using namespace Qt::StringLiterals;

namespace {

struct LanguageWords {
    QString lang;
    std::vector<std::pair<QByteArray, QByteArray>> words; // tag and word
};

std::vector<LanguageWords> languageTable;

LanguageWords PairWords(const QString& lang, const QList<QByteArray>& tags,
                        const QList<QByteArray>& words) {
    if (words.size() > tags.size()) {
        throw std::runtime_error(
            u"La plantilla de diseño tiene más textos que etiquetas en el idioma %1."_s.arg(lang)
                .toStdString());
    }
    LanguageWords entry{lang, {}};
    for (qsizetype place = 0; place < words.size(); ++place) {
        entry.words.emplace_back(tags[place], words[place]);
    }
    return entry;
}

} // namespace

void ResetWebLangs() {
    WebLangs = SplitFields(UserLangs, QChar(kLanguageSeparator));
    languageTable.clear();
}

void LoadLanguageStrings() {
    const int section = FindSection(kKindLanguages);
    if (section == kNoSection) {
        return;
    }
    const QStringList languages =
        SplitFields(TrimBlanks(TemplateSections[section].Name), QChar(kLanguageSeparator));
    const QList<QByteArray> lists = SectionBodies[section].split('|');
    const QList<QByteArray> tags = lists.first().split('#');
    for (qsizetype place = 0; place < languages.size() && place + 1 < lists.size(); ++place) {
        languageTable.push_back(PairWords(languages[place], tags, lists[place + 1].split('#')));
    }
}

void ApplyLanguageStrings(TagText& text, const QString& lang) {
    for (const LanguageWords& entry : languageTable) {
        if (entry.lang == lang) {
            for (const auto& [tag, word] : entry.words) {
                text.Replace(tag, word);
            }
            return;
        }
    }
}

LanguageSelector BuildLanguageSelector(const QStringList& languages) {
    LanguageSelector selector;
    const int section = FindSection(kKindLanguageSelector);
    if (section == kNoSection) {
        return selector;
    }
    selector.TagName = ToAnsi(TemplateSections[section].Name);
    if (languages.size() == 1) {
        return selector;
    }
    const SectionParts parts = SplitSectionBody(section);
    selector.Text = parts.head;
    for (const QString& language : languages) {
        selector.Text += ReplaceTag(parts.middle, "%LID%", ToAnsi(language));
    }
    selector.Text += parts.tail;
    return selector;
}
