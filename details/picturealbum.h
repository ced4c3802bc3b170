// The album: the pictures of the open product.
#pragma once

// Shows the album modally and brings the main form's picture count up to date.
void ShowPictureAlbum();
