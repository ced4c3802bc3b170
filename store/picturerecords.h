// Pictures of the open product: their rows on cursor 3 and their private copies beside the store.
#pragma once

#include <QString>

// Reads the open product's rows, in album order, and shows their count in the main form.
void LoadPictures();
