#include "generator/sitefiles.h"

#include "core/settings.h"
#include "site/outputs.h"
#include "site/template.h"
#include "site/transforms.h"
#include "site/weblangs.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kIndexWithoutHome = 1;

void AddBody(int section, const QString& name, const QString& lang) {
    AddOutputFile({name, lang, {}, false, SectionBodies[section]});
}

bool IsPerLanguage(const QString& name) {
    const QString upper = TrimBlanks(name).toUpper();
    return upper.endsWith(u".HTML") || upper.endsWith(u".JS");
}

} // namespace

void CopyTemplateFiles() {
    for (const int section : AllSections(kKindCopiedFile)) {
        const QString name = TemplateSections[section].Name;
        for (const QString& lang : IsPerLanguage(name) ? WebLangs : QStringList(QString())) {
            AddBody(section, name, lang);
        }
    }
}

void CopyIndexPages() {
    const int section = FindSection(kKindHomePage);
    if (section == kIndexWithoutHome || section == kNoSection) {
        return;
    }
    for (const QString& lang : WebLangs) {
        AddBody(section, u"index"_s + lang + u".html"_s, lang);
        if (lang == DefaultLang) {
            AddBody(section, u"index.html"_s, lang);
        }
    }
}

void CopyLanguagePages() {
    const int section = FindSection(kKindLanguagePage);
    if (section == kNoSection) {
        return;
    }
    for (const QString& lang : WebLangs) {
        AddBody(section, TemplateSections[section].Name, lang);
    }
}

QString BuildFixedPages(SectionKind previewKind) {
    QString result;
    for (const QString& lang : WebLangs) {
        for (const int kind : {kKindAboutUs, kKindFindUs, kKindFixedPage}) {
            const int section = FindSection(kind);
            if (section == kNoSection) {
                continue;
            }
            QString name = TemplateSections[section].Name;
            if (kind == previewKind) {
                name.replace(u"%LID%"_s, UICurrentLang);
                RenameSection(section, name);
                result = TrimBlanks(name);
            }
            AddBody(section, name, lang);
        }
    }
    return result;
}
