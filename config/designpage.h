// The page "Aspecto Web" of the configuration: designs, their colours and their languages.
#pragma once

#include <QString>

class ConfigForm;

// Lists the designs of the store's folder and shows the chosen one with its colours and languages.
void FillDesignPage(ConfigForm& form);

void ConnectDesignPage(ConfigForm& form);

// Number of the colour set that is selected, from 0.
int ChosenColorSet(const ConfigForm& form);

struct LanguageChoice {
    QString userLangs;   // codes joined by "|"
    QString defaultLang; // one of them
};

LanguageChoice ChosenLanguages(const ConfigForm& form);

// Check boxes and default options by the languages of the template on show.
void ShowTemplateLanguages(ConfigForm& form);
