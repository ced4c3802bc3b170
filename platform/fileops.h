// The shell's file operations: move, copy, delete and rename of one path or several, with
// wildcards.
#pragma once

#include <QString>
#include <QStringList>

enum class FileOp { Move = 1, Copy = 2, Delete = 3, Rename = 4 };

// 0 on success, otherwise the system's error number (errno). Each source may hold * and ? in its
// last part, where "*.*" means every file; a pattern without a match and a missing source are
// errors (ENOENT). Move and Copy take a file name or an existing folder as destination and replace
// what is there; a replaced file is whole at every moment (written beside it, then renamed). Delete
// ignores `destination`. With `askConfirmation` the user is asked before a file is replaced or
// deleted; a refusal is ECANCELED. Yields to the event loop before it returns.
int FileOperation(FileOp operation, const QStringList& sources, const QString& destination,
                  bool askConfirmation = false);

// Writes `data` under `path`: beside it first, then renamed over it. False leaves the old file.
bool ReplaceFile(const QString& path, const QByteArray& data);

// `folder` with a trailing "/" added if it lacks one; an empty text stays empty.
QString WithSeparator(const QString& folder);
