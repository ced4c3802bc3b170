#include "portal/request.h"

#include <algorithm>

QByteArray OneLine(const QByteArray& text) {
    const auto end = std::find_if(text.begin(), text.end(), [](char character) {
        return static_cast<unsigned char>(character) < ' ' || character == '\x7F';
    });
    return text.left(end - text.begin());
}

QByteArray HeaderOf(const QByteArrayList& lines) {
    QByteArray header;
    for (const QByteArray& line : lines) {
        header.append(line).append(kPortalLineEnd);
    }
    return header.append(kPortalLineEnd);
}
