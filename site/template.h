// The design template: a .zdt file with a header of 561 bytes, a table of sections of 239 bytes
// each, and the sections' bodies. Integers are little-endian, text is Windows-1252, fixed fields
// are padded with blanks. docs/designs.md describes the format. Owns the design of the present
// generation; whoever only looks at one reads it into a TemplateContent.
#pragma once

#include <QByteArray>
#include <QString>
#include <array>
#include <vector>

class QIODevice;

inline constexpr int kHeaderSize = 561;  // bytes
inline constexpr int kSectionSize = 239; // bytes
inline constexpr int kMaxSections = 101;
inline constexpr qint64 kMaxBodies = qint64(1) << 30; // bytes of all bodies; they may overlap

// What FindSection returns when there is none. Stored nowhere, but compared in lists of sections.
inline constexpr int kNoSection = 65535;

// Roles of sections, as stored in files.
enum SectionKind {
    kKindNone = 0,
    kKindHomePage = 1,
    kKindProductPage = 2,
    kKindCopiedFile = 3,
    kKindZoneList = 4,
    kKindPictureBlock = 5,
    kKindEmphasis1 = 6,
    kKindEmphasis2 = 7,
    kKindAboutUs = 8,
    kKindDataList = 9,
    kKindFindUs = 10,
    kKindLanguagePage = 11,
    kKindProductPicture = 12,
    kKindPreview = 13,
    kKindCorpLogo = 14,
    kKindExtraPicture = 15,
    kKindFindUsMap = 16,
    kKindPicturePage = 17,
    kKindFixedPage = 18,
    kKindNoPicture = 19,
    kKindLayoutPage = 20,
    kKindLanguages = 21,
    kKindLanguageSelector = 22,
    kKindChoiceList = 23,
    kKindZoneBlock = 24,
    kKindZonePage = 25,
    kKindZoneLinks = 26,
    kKindCategoryTree = 27,
    kKindColorSets = 28
};

struct TemplateHeaderRecord {
    QString Magic;       // "KPF"
    QString Tag;         // not interpreted
    QString Name;        // title, 50 characters, padded
    QString Description; // free text, 497 characters, padded; also a parameter string
    int Scrambled = 0;   // 1: every body byte is stored complemented; anything else is plain
    int MaxEmph1 = 0;    // capacity of the first emphasised block, 0 to 255
    int MaxEmph2 = 0;    // added to it for the second, modulo 256
    int SectionCount = 0;
};

struct TemplateSectionRecord {
    QString Name;         // 25 characters, padded
    qint32 Position = 0;  // of the body in the file, counted from 1
    qint32 LastIndex = 0; // bytes of the body minus 1; -1: no body
    int Kind = 0;
    QString Params; // 200 characters, padded
};

using SectionTable = std::array<TemplateSectionRecord, kMaxSections>; // unused slots have kind 0

// A design as it lies in a file.
struct TemplateContent {
    TemplateContent();

    TemplateHeaderRecord Header;
    SectionTable Sections;
    std::array<QByteArray, kMaxSections> Bodies; // a single zero byte where there is none
};

// The design that the present generation works with.
extern TemplateHeaderRecord TemplateHeader;
extern SectionTable TemplateSections;
extern std::array<QByteArray, kMaxSections> SectionBodies;

// Every body becomes a single zero byte, header and table are emptied, OutputFiles is cleared.
// Before each load.
void ResetTemplateState();

// The steps of reading a design, in this order, each from where the one before has stopped.
//
// False after the required warning box if the three characters of the magic are not "KPF" or the
// file is too short for a header.
bool LoadTemplateHeader(QIODevice& file, TemplateContent& design);

// The table, then the bodies. False, after the box "Se ha producido un error al abrir la plantilla
// de diseño", where a count, position or length doesn't fit the file or the bodies together exceed
// kMaxBodies: nothing of the table, or no body, is read then.
bool LoadTemplateSections(QIODevice& file, TemplateContent& design);
bool LoadTemplateBodies(QIODevice& file, TemplateContent& design);

// All of them, into `design` alone. False after the box of whichever step refused the file, or the
// damage box for a file that can't be opened.
bool ReadTemplate(QIODevice& file, TemplateContent& design);
bool ReadTemplateFile(const QString& path, TemplateContent& design);

// Makes a design that was read the present generation's.
void UseTemplate(TemplateContent design);

// Reset, read, use.
bool LoadTemplateFile(const QString& path);

// Gives a section another name for the rest of the generation.
void RenameSection(int section, const QString& name);

// First section of the kind in table order, or kNoSection.
int FindSection(int kind, const SectionTable& table = TemplateSections);

// The LAST section of the kind, or kNoSection, in a list of one; after a hit the next table slot is
// skipped. Odd, and on purpose: with another one found, sites of designs that hold several would
// show other blocks.
std::vector<int> FindSections(int kind);

// Sections of the kind in table order, all of them.
std::vector<int> AllSections(int kind, const SectionTable& table = TemplateSections);

struct SectionParts {
    QByteArray head;
    QByteArray middle;
    QByteArray tail;
};

// The body cut by the lengths START, MIDDLE and END (16-bit) of the section's Params. A length that
// is no number or negative is 0, one beyond the body is cut there; kNoSection gives three empty
// pieces.
SectionParts SplitSectionBody(int section);

// Indices of all product-picture sections; one element kNoSection when there is none. Filled by
// IndexImageSections.
extern std::vector<int> ImageSections;
void IndexImageSections();

// Adds the files that CUSTOMFILES of the header's Description names (separated by ",") from the
// store's folder to OutputFiles; missing and empty ones, those outside that folder, and the
// catalogue's own files are passed over.
void CopyCustomFiles();
