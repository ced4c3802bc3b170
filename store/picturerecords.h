// Pictures of the open product: a row each on cursor 3, a private copy of the file beside the
// store, and texts per language. The boxes of the album are the working copy of the current
// picture.
//
// PictureId is ProductId * 100 + ProdPictureId; it names the copy, "Pic" + PictureId + ".dat"
// whatever its format, and the picture's texts. OrderInForm is the place in the album, dense from
// 0; a row's position on cursor 3 is one more.
#pragma once

#include <QString>

// Reads the open product's rows, in album order, and shows their count in the main form.
void LoadPictures();

// Writes the number of rows on cursor 3 into the main form.
void ShowPictureCount();

// Fills the album's boxes from the current row, or empties them when there is none.
void ShowPictureRecord();
void ClearPictureBoxes();

// Compares boxes and rows and saves what differs; nothing while the product is read-only. A save
// stamps the product too.
void SavePictureIfChanged();
void SavePicture();

// How adding a picture or changing its file ended.
enum class PictureResult {
    Done,
    LimitReached, // the album is full: nothing changed, the user has been told
    NotCopied     // no file was chosen, or it could not be copied: the row is as before
};

// Adds a picture from the file `path`, or from the one that the user chooses if it is empty.
PictureResult AddPicture(const QString& path);

// Copies `path`, or what the user chooses, over the current picture's file.
PictureResult ChangePictureFile(const QString& path);

// Deletes the current picture's file, row and texts, and closes the gap in the order; the first row
// becomes current.
void DeletePicture();

// Swaps the pictures at two positions, from 1; the second one becomes current.
void MovePicture(int from, int to);

// How many pictures a product can have: the album's frames.
int PictureLimit();

// Forgets the folder of the last picture chosen: the next choice starts in the user's usual one.
void ForgetPictureFolder();
