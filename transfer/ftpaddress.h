// How servers, folders and files are written in the address of an FTP transfer (RFC 1738, RFC 3986)
// and which of them can't be: nothing that a user types may break out of its place in an address or
// of its line on the wire. Folders and names go over the wire in Windows-1252.
#pragma once

#include <QByteArray>
#include <QString>

// The host of an address from what the user typed: blanks around it, "ftp://" in front and "/"
// behind don't count, an address of IP version 6 gets its brackets, a name with accents its ASCII
// form (RFC 3490). Empty if it names no host.
QByteArray HostInAddress(const QString& typed);

// A folder with a "/" at its end; empty for the one that the log-in leads to.
QByteArray FolderInAddress(const QString& folder);

QByteArray NameInAddress(const QString& name);

// Without control characters, which would end a line on the wire.
bool FitsOneLine(const QString& text);
