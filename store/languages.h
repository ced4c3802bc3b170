// The languages that a user may choose among. Owns LanguageList.
#pragma once

#include <QString>
#include <vector>

struct Language {
    QString LangCode; // two letters
    QString Caption;  // name shown
    int Priority = 0; // lower comes first
};

extern std::vector<Language> LanguageList; // in order of priority; read at start

// Reads the table through cursor 1.
void LoadLanguages();

// Name of a language; empty for a code that the table lacks.
QString LanguageCaption(const QString& code);
