// Small pure text steps of the generator.
//
// Site text stands in its final form, Windows-1252 bytes (QByteArray): sections, pages and
// fragments are never widened. Values of the catalogue and names of files are QString and are
// narrowed when they enter a text.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// The text without the blanks (20 hexadecimal) at both ends; other white space stays. This is what
// "trimmed" means for names, parameters and fixed fields of a design.
QString TrimBlanks(const QString& text);
QByteArray TrimBlanks(const QByteArray& text);

// The bytes of a finished text: from the first NUL on everything is zero; an empty text is a single
// zero byte. Without it every file of a site would differ from what was last sent of it.
QByteArray TextToBytes(const QByteArray& text);

// Value of `key` in a run of KEY=value; items, trimmed of blanks. The first occurrence of `key`
// anywhere counts, even inside a longer key or an earlier value; without a closing ";" the value
// loses the text's last character. Designs rely on both. Empty when the key or a "=" behind it is
// missing.
QString GetParam(const QString& text, const QString& key);

// Pieces between separators, empty ones kept; at least one piece.
QStringList SplitFields(const QString& text, const QString& separator);

// The n-th piece, counted from 1; empty if there are fewer.
QString NthField(const QString& text, int n, const QString& separator);

QString EscapeQuotes(const QString& text); // ' becomes \'
QByteArray EscapeQuotes(const QByteArray& text);
QString CrLfToBr(const QString& text); // each pair CR LF becomes <br>; lone ones stay

// Lines of script that write `text`, one document.writeln a line; always ends in CR LF. Only single
// quotes are escaped.
QByteArray ToDocWrite(const QByteArray& text);

// Every `tag` (trimmed of blanks) followed by ".DOCWRITE" becomes the value as script lines, then
// every other `tag` the value as it stands; a blank tag changes nothing. Pages use TagText, which
// does the same faster.
QByteArray ReplaceTag(const QByteArray& text, const QByteArray& tag, const QByteArray& value);

// A value as a piece of a file name: lower case, accents off, separators to "-", a "-" in front
// unless empty. Anything else ("ç", "?", "&") stays.
QString MakeFileSuffix(const QString& text);

// Text between the first `openMark` at or after `from` (from 0) and the next `closeMark`; `from`
// moves to the second byte of that closing mark. Empty, and `from` stays, when either is missing.
QByteArray FirstBetween(const QByteArray& text, const QByteArray& openMark,
                        const QByteArray& closeMark, qsizetype& from);
