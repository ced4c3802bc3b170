// Generated files in memory. The generator appends to OutputFiles; nothing is written or sent
// before the whole site stands.
#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <vector>

struct OutputFile {
    QString Name; // as in the output folder; may hold %LID% until the finishing pass, and blanks at
                  // its end
    QString Lang; // language code; empty for a file that serves all languages
    QByteArray Md5;       // 32 lower-case hexadecimal digits, set by the finishing pass
    bool SendNow = false; // differs from what was last sent; see MarkForSending
    QByteArray Data;
    std::shared_ptr<char[]> Draft = nullptr; // keeps the bytes of an unfinished page alive
};

// Files of the present generation in the order in which they were made; emptied at each one. Two
// files of the same name are both kept, and the later one overwrites the earlier when written.
extern std::vector<OutputFile> OutputFiles;

// Yields to the event loop, then appends.
void AddOutputFile(OutputFile file);

// The same for a page that the finishing pass will replace. Its bytes lie in one block with those
// of its neighbours, which goes with the last of them: single ones would leave holes all over the
// memory, just too small for the finished pages.
void AddDraft(const QString& name, const QString& lang, const QByteArray& data);

// For the finishing pass: takes the file at `place` (from 0) out, so that its memory can be used
// again while it is reworked, and puts it back.
OutputFile TakeOutputFile(int place);
void PutOutputFile(int place, OutputFile file);

// For the transport: the files of which `differs` says so are to be sent, the others aren't.
void MarkForSending(std::vector<OutputFile>& files, bool (*differs)(const OutputFile& file));

// Forgets all files.
void ClearOutputFiles();

// Whether `name`, which must not be trimmed any more, stays in the folder that it is used in: it
// holds neither a separator of any system nor a NUL, and is not "..".
bool IsPlainFileName(const QString& name);

// Whether `path` is the store or lies where its journal, lock, backup or compaction copy does:
// files that no design may read or overwrite. Opens nothing.
bool IsCatalogueFile(const QString& path);

// Writes every file with a name into `folder` (made if missing, one level only), yielding before
// each. The first failure ends the run and returns false; files written so far stay. A name that
// is no plain file name, a file that is read-only and the catalogue's own files are failures too.
bool SaveOutputFiles(const QString& folder);
