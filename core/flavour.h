// The flavour: one program serves several trades. Names and nouns are defaults that the file
// sector.dat beside the program may replace. Written by LoadFlavour alone, once, before anything
// shows text.
#pragma once

#include <QIcon>
#include <QString>

extern QString AppBrand;        // first half of the flavour code, four characters; "LUM_"
extern QString AppSector;       // second half: "PROD", "INMO" or "AUTO"; "PROD"
extern QString AppName;         // name shown, and application of all settings; "Lumenta"
extern QString ProdSing;        // noun for one catalogue item; "Producto"
extern QString ProdPlur;        // noun for several; "Productos"
extern QString ProdGender;      // "M" is masculine, anything else feminine; "M"
extern QString CategoryCaption; // caption of the category field; "Categoría"
extern QString CategoryTip;     // its tool tip, placeholders and all
extern QString LogoCaption;     // caption of the association's logo box; "[N/A]" hides the box

// Gives the nine values their defaults, then takes those of `folder` + "sector.dat" if that file
// holds at least nine lines. The file's last byte is cut, every other byte is complemented against
// 255, lines end in CR LF, text is Windows-1252. True if the file exists, whatever it holds.
bool LoadFlavour(const QString& folder);

// The two tests that the program's decisions hang on.
bool IsGenericFlavour();    // LUM_ + PROD
bool IsRealEstateFlavour(); // ZAND + INMO
