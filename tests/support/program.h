// The program as a user has it in front of him: a catalogue from text (catalogue.h), the main form
// connected as at start-up, the store open and the first product in the editor. What a test does
// goes through real keys and clicks.
#pragma once

#include "tests/support/catalogue.h"

#include <QString>
#include <functional>
#include <string>

class QWidget;

enum class Trade { Generic, RealEstate };

// Builds the main form over the open settings and opens the store of `folder`, in Spanish and
// English. The list is filled and the window active.
void StartScreens(const QString& folder, Trade trade = Trade::Generic);
void EndScreens();

// Three products with five fields (text, yes/no, list of choices, two internal ones), texts in
// Spanish and English; the second is featured, the third archived.
extern const char kSmallCatalogue[];

// From here on this process makes catalogues in memory where the machine offers that: for tests of
// very many saves.
struct MemoryDisk {
    MemoryDisk();
};

class TestProgram {
public:
    explicit TestProgram(const QString& rows = kSmallCatalogue, Trade trade = Trade::Generic);
    ~TestProgram();

    QString Folder() const { return catalogue.Folder(); }

private:
    TestCatalogue catalogue;
};

// Makes the main window active again after a box, as a window manager does; the routines below
// begin with it.
void ReturnToWindow();

// Replaces what a box holds by typing.
void Type(QWidget* box, const QString& text);

// Types at the caret.
void TypeOn(QWidget* box, const QString& text);

void PressKey(QWidget* box, int key);

// A click with the mouse into the middle of a control, or on a row of the list (from 0).
void Click(QWidget* control);
void ClickRow(int row);
void ClickHeader(int column);

// A letter for each step that the page of the publish lists: t to do, c current, d done, f failed.
std::string StepLetters();

// Presses a button of the tool bar by its key.
void ClickTool(const QString& key);

// The list's rows, columns joined by ";", rows by "|".
QString ListText();

// The list's references, joined by blanks.
QString References();

// What a statement finds in the store now: fields joined by ";", rows by "|"; Null is "NULL".
QString Stored(const QString& statement);

// Those of a product's fields, and of the texts of a product or a picture, in their order.
QString FieldsOf(int product);
QString TextsOf(int item, const QString& lang = "ES");

// The engine's own check of the whole store: "ok" or what it found.
QString StoreCheck();

// Changes the store by the engine's own SQL, past the program.
void ChangeStore(const QString& statements);

// From here on the store refuses a kind of change ("UPDATE ON Products"), until it is permitted.
void Refuse(const QString& change);
void Permit();

// Once, as soon as a dialog is on screen, `act` runs, and the dialog is closed if it is still open.
void WhenDialogOpens(const std::function<void()>& act);
