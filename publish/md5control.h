// The control file: which content was last sent by FTP under which name.
//
// md5control.txt lies in the store's folder: records of 94 bytes without header, each a file name
// of 60 characters (Windows-1252, padded with blanks or cut), a hash of 32 lower-case hexadecimal
// digits, CR and LF. It is read once a run and written record by record; nothing ever empties it:
// to send a whole site again a user removes it by hand.
#pragma once

#include <QByteArray>
#include <QString>

// Whether some record holds this name and this hash. Blanks around names don't count, case does.
bool IsFileUnchanged(const QString& fileName, const QByteArray& hash);

// Stores the pair, in the first record of that name or in a new one, and writes it at once. Throws
// std::runtime_error, with a text for the user, if the file can't be written.
void RecordFileSent(const QString& fileName, const QByteArray& hash);

// Forgets what was read, as at the start of the program.
void ResetControlFile();
