// The catalogue store: opening and closing it, and the six cursors through which the program reads
// and writes. Each cursor has one role for the whole run. Owns adcData and StoreOpen.
#pragma once

#include "engine/recordset.h"

#include <array>

// Roles of the cursors, by index.
enum StoreCursor {
    kCursorScratch = 1,  // any one-off query
    kCursorList = 2,     // the product list
    kCursorPictures = 3, // pictures of the open product
    kCursorFields = 4,   // ProductFields rows of the open product
    kCursorTexts = 5,    // MultiLangFields rows being edited, of one item and language
    kCursorProduct = 6,  // the one open Products row, under its row lock
    kCursorCount = 6
};

// A cursor that must hold nothing is parked on this statement: no rows, but a valid column list.
inline constexpr char kParkStatement[] = "SELECT * FROM Products WHERE 1 = 2";

// Indices 1 to 6; element 0 is not used.
extern std::array<Recordset, kCursorCount + 1> adcData;

// The store is open and its field definitions could be read. Written by OpenStore and CloseStore.
extern bool StoreOpen;

// Opens DBpath + DBname. 0 when it is open; 1 when it failed and the user looked at the
// configuration: the caller tries again. Answering No to the failure box ends the program.
int OpenStore();

// Lets go of all cursors and of the store file. Whoever closes it releases the open product first.
void CloseStore();

// Gives cursor `index` a statement and runs it. Every statement of the program passes through here
// but the snapshot's. A failure is a StoreError; nothing is shown.
void RunQuery(int index, const QString& statement);

// Parks a cursor, which drops its row lock.
void ParkCursor(int index);

// Yields until the cursor's current row is settled.
void WaitForCursor(const Recordset& cursor);

enum class Touched { Product, Picture, All };

// Puts the present date and time into the record boxes that a save writes: the main form's, the
// album's or both. The row gets it at its next save.
void TouchLastUpdate(Touched what);

// Runs a save on the way out of a screen. False if it failed and the user would rather stay.
bool SaveBeforeEnd(void (*save)());
