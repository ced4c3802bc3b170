#include "transfer/ftpaddress.h"

#include "text/ansi.h"

#include <QRegularExpression>
#include <QUrl>
#include <algorithm>
#include <arpa/inet.h>

namespace {

constexpr char kScheme[] = "ftp://";

bool IsHostName(const QString& text) {
    static const QRegularExpression pattern("\\A[A-Za-z0-9_.-]+\\z");
    return pattern.match(text).hasMatch();
}

// "fe80::1" or "fe80::1%eth0", in brackets or not; empty if it is none.
QByteArray AddressOfVersion6(QString text) {
    if (text.startsWith(u'[') && text.endsWith(u']')) {
        text = text.mid(1).chopped(1);
    }
    const QString number = text.section(u'%', 0, 0);
    const QString zone = text.section(u'%', 1);
    in6_addr parsed;
    if (inet_pton(AF_INET6, number.toLatin1().constData(), &parsed) != 1 ||
        !(zone.isEmpty() || IsHostName(zone))) {
        return {};
    }
    return "[" + number.toLatin1() + (zone.isEmpty() ? QByteArray() : "%25" + zone.toLatin1()) +
           "]";
}

} // namespace

QByteArray HostInAddress(const QString& typed) {
    QString host = typed.trimmed();
    if (host.startsWith(kScheme, Qt::CaseInsensitive)) {
        host.remove(0, qsizetype(qstrlen(kScheme)));
    }
    while (host.endsWith(u'/')) {
        host.chop(1);
    }
    if (host.contains(u':')) {
        return AddressOfVersion6(host);
    }
    if (!IsHostName(host)) {
        host = QString::fromLatin1(QUrl::toAce(host));
    }
    return IsHostName(host) ? host.toLatin1() : QByteArray();
}

QByteArray FolderInAddress(const QString& folder) {
    const QByteArray encoded = ToAnsi(folder).toPercentEncoding("/");
    return encoded.isEmpty() || encoded.endsWith('/') ? encoded : encoded + "/";
}

QByteArray NameInAddress(const QString& name) {
    return ToAnsi(name).toPercentEncoding();
}

bool FitsOneLine(const QString& text) {
    return std::none_of(text.begin(), text.end(),
                        [](QChar letter) { return letter < u' ' || letter == u'\x7F'; });
}
