// The flavour: one program serves several trades. Names and nouns are defaults that the file
// sector.dat beside the program may replace. Written by LoadFlavour alone, once, before anything
// shows text.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Lines that a flavour file must hold; more are ignored.
inline constexpr int kFlavourLines = 9;

// In place of a caption, in flavour files too: the trade has no such control.
inline constexpr char kNotAvailable[] = "[N/A]";

extern QString AppBrand;        // first half of the flavour code, four characters; "LUM_"
extern QString AppSector;       // second half: "PROD", "INMO" or "AUTO"; "PROD"
extern QString AppName;         // name shown, and application of all settings; "Lumenta"
extern QString ProdSing;        // noun for one catalogue item; "Producto"
extern QString ProdPlur;        // noun for several; "Productos"
extern QString ProdGender;      // "M" is masculine, anything else feminine; "M"
extern QString CategoryCaption; // caption of the category field; "Categoría"
extern QString CategoryTip;     // its tool tip, placeholders and all
extern QString LogoCaption;     // caption of the association's logo box; kNotAvailable

// The lines of a flavour file: its last byte is cut, every other byte is complemented against 255,
// lines are separated by CR LF, text is Windows-1252. Any bytes give some lines.
QStringList ReadSectorLines(const QByteArray& bytes);

// Gives the nine values their defaults, then takes those of `folder` + "sector.dat", in the order
// above, if that file holds at least nine lines; unhandled failures are titled AppName from now on.
// True if the file exists, whatever it holds.
bool LoadFlavour(const QString& folder);

// The tests that the program's decisions hang on.
bool IsGenericFlavour();    // LUM_ + PROD
bool IsRealEstateFlavour(); // ZAND + INMO
bool HasLogoBox();          // LogoCaption is one
