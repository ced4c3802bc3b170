#include "store/languages.h"

#include "store/store.h"

std::vector<Language> LanguageList;

namespace {

constexpr char kLanguagesStatement[] = "SELECT * FROM Languages ORDER BY Priority";

} // namespace

void LoadLanguages() {
    RunQuery(kCursorScratch, kLanguagesStatement);
    Recordset& rows = adcData[kCursorScratch];
    LanguageList.clear();
    for (; rows.HasRow(); rows.MoveNext()) {
        LanguageList.push_back({rows.Text(u"LangCode"), rows.Text(u"Caption"),
                                static_cast<int>(rows.Integer(u"Priority"))});
    }
}

QString LanguageCaption(const QString& code) {
    for (const Language& language : LanguageList) {
        if (language.LangCode == code) {
            return language.Caption;
        }
    }
    return {};
}
