// What the requests to the portal have in common. They are written as they stand on the wire
// (HTTP/1.0, RFC 1945) in Windows-1252; docs/portal.md has one example of each. Nothing is encoded:
// the portal knows the program's requests as they are.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

inline constexpr char kPortalLineEnd[] = "\r\n";

// Values of headers, as the portal expects them.
inline constexpr char kPortalAccept[] =
    "image/gif, image/x-xbitmap, image/jpeg, image/pjpeg, application/x-shockwave-flash, "
    "application/vnd.ms-powerpoint, application/vnd.ms-excel, application/msword, */*";
inline constexpr char kPortalUserAgent[] = "Zandora Inmobiliarias";

// The bytes up to the first control character: what a setting or an answer brings into a header
// must not begin another one.
QByteArray OneLine(const QByteArray& text);

// Lines joined, each with its end, and an empty one behind them.
QByteArray HeaderOf(const QByteArrayList& lines);
