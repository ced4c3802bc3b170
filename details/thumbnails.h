// The album's slots: which picture each shows, and the large view.
#pragma once

#include <QString>

// Shows the pictures of cursor 3 in order. What a slot shows already is not read again, so a
// picture whose file has changed under its name goes through LoadThumbnail.
void LoadThumbnails();

// Nothing is shown in the slot: its picture's file is going.
void EmptyThumbnail(int slot);

// Loads one picture from the store's folder into a slot (from 0); a file that is missing or damaged
// shows as such, with a warning that says how to mend it.
void LoadThumbnail(int slot, const QString& name);

// Two slots exchange their pictures, without reading a file.
void SwapThumbnails(int first, int second);

// Shows a slot's picture large, with its file's size; -1 or an empty slot empties the view.
void ShowCurrentPicture(int slot);

// Marks a slot as selected, or none with -1.
void MarkSlot(int slot);
