// Colour sets: a template offers several palettes, the user picks one, and its values replace the
// named colours in every text file. The template's section of kind 28 is a run of KEY=value; items:
// PARAMS names the colours, NUMBERSOFSTYLES and COLORSSTYLEn serve the configuration's swatches,
// and the values of set n stand between "<!--STYLEn" and "STYLEn-->". Owns StyleColors.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

struct StyleColor {
    QByteArray Name; // any text of the template; empty: not replaced
    QByteArray Value;
};

extern std::vector<StyleColor> StyleColors; // of the present generation; empty at start

// At the beginning of a generation.
void ResetStyles();

// The palette TemplColorSet of the template's first section of kind 28, if there is one.
void LoadStyles();

// Palette number `set` of `body` into `colors`, a pair for each name of PARAMS. Without PARAMS
// `colors` stays as it was; a set that the body lacks gives empty values.
void ApplyStyle(const QByteArray& body, int set, std::vector<StyleColor>& colors);

// The colour lists of all sets in order, joined by "|".
QString ReadColorSets(const QByteArray& body);
