// The shell's file operations: move, copy, delete and rename of one path or several, with
// wildcards.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

enum class FileOp { Move = 1, Copy = 2, Delete = 3, Rename = 4 };

// 0 on success, otherwise the system's error number (errno). Works on files alone: a folder as
// source is EISDIR. Each source may hold * and ? in its last part, without regard to case, where
// "*.*" means every file of the folder, hidden ones too; a file of just that name is taken as it
// is. A pattern without a match and a missing source are errors (ENOENT).
//
// Move and Copy take a file name or an existing folder as destination (an existing folder alone for
// a pattern or several sources, else ENOTDIR) and replace what is there; a replaced file is whole
// at every moment (written beside it, then renamed). A Move that fails half way takes back what it
// moved. Rename takes one source and a full new path. Delete ignores `destination`. With
// `askConfirmation` the user is asked before a file is replaced or deleted; a refusal is ECANCELED.
// Yields to the event loop after each file.
int FileOperation(FileOp operation, const QStringList& sources, const QString& destination,
                  bool askConfirmation = false);

// Who may read a new file: as the user's other files, or its user alone.
enum class FileReaders { Usual, UserOnly };

// Writes `data` under `path`: beside it first, then renamed over it, and on disk when it returns.
// False leaves the old file. A replaced file passes its permissions on, unless UserOnly.
bool ReplaceFile(const QString& path, const QByteArray& data,
                 FileReaders readers = FileReaders::Usual);

// `folder` with a trailing "/" added if it lacks one; an empty text stays empty.
QString WithSeparator(const QString& folder);
