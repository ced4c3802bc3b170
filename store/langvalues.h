// Texts per language: the rows of MultiLangFields of one item in one language, between the store
// and the boxes of the screen that shows them. All of it works on cursor 5, which holds the rows of
// the set on screen.
//
// A set of rows is either complete or absent, so rows and boxes are walked together. A load comes
// before a save of the same item and language.
#pragma once

#include <QString>
#include <vector>

class QWidget;

// Tables with texts. Their names are stored; the number of texts each has per language is fixed
// here and agrees with MultiLangFieldDef.
enum class TextTable { Products, Pictures, CorpInfo };
const QString& TextTableName(TextTable table);

inline constexpr int kProductTexts = 3; // title, long description, category or zone
inline constexpr int kPictureTexts = 2; // title, comments
inline constexpr int kCorpTexts = 4;
inline constexpr char kCorpItemId[] = "0"; // ItemId of the company's texts, as stored

// Fills the boxes of the screen for the open item and UICurrentLang; a set that doesn't exist is
// created (empty, committed by the next save).
void LoadProductLangValues();
void LoadPictureLangValues();
void LoadCorpLangValues();

// Writes the boxes to the rows on cursor 5 and commits; nothing without rows.
void SaveProductLangValues();
void SavePictureLangValues();
void SaveCorpLangValues();

// Creates a complete, empty set on cursor 5 and empties the boxes. Not committed here.
void CreateLangRows(TextTable table, const QString& itemId, const QString& langCode);

// Saves the product's texts and stamps it if a box differs from its row; nothing while read-only.
// Without a difference only rows that are new are written.
void SaveProductLangIfChanged();

// Whether a box of the screen differs from its row on cursor 5, or the last save of them failed. A
// Null differs from nothing: it becomes text with the first save.
bool LangValuesDiffer(const std::vector<QWidget*>& boxes);
