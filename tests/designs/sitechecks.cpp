#include "tests/designs/sitechecks.h"

#include "tests/support/files.h"
#include "text/ansi.h"

#include <QProcess>
#include <QRegularExpression>

namespace {

QString ReadSiteFile(const QDir& site, const QString& name) {
    return FromAnsi(ReadFile(site.filePath(name)));
}

// Addresses in an attribute: several in srcset, one anywhere else.
QStringList AddressesOf(const QString& attribute, const QString& value) {
    if (attribute != "srcset") {
        return {value};
    }
    QStringList addresses;
    for (const QString& candidate : value.split(',')) {
        addresses += candidate.trimmed().section(' ', 0, 0);
    }
    return addresses;
}

void CheckAddress(const QDir& site, const QString& page, const QString& address,
                  QStringList& findings) {
    static const QRegularExpression scheme("^(mailto|tel|data):|^#|^$");
    if (scheme.match(address).hasMatch()) {
        return;
    }
    const QString name = address.section(QRegularExpression("[?#]"), 0, 0);
    if (name.contains('/') || !site.exists(name)) {
        findings += page + ": " + address;
    }
}

} // namespace

QStringList FindTagsLeft(const QDir& site) {
    static const QRegularExpression mark("%%[A-Z0-9][A-Z0-9.]*%%|%[A-Z]+[\\[:]%|%[\\]/][A-Z]+%|"
                                         "%(LID|FK|SI|NO|Q|B|[A-Z]{3,})%");
    QStringList findings;
    for (const QString& name : site.entryList({"*.html", "*.js", "*.css"})) {
        const auto match = mark.match(ReadSiteFile(site, name));
        if (match.hasMatch()) {
            findings += name + ": " + match.captured();
        }
    }
    return findings;
}

QStringList FindBrokenLinks(const QDir& site) {
    static const QRegularExpression comment("<!--.*?-->",
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression reference(
        "\\b(href|src|srcset|action)=(?:\"([^\"]*)\"|'([^']*)')|(url)\\(([^)]*)\\)");
    QStringList findings;
    for (const QString& name : site.entryList({"*.html", "*.css"})) {
        for (const auto& match : reference.globalMatch(ReadSiteFile(site, name).remove(comment))) {
            for (const QString& address :
                 AddressesOf(match.captured(1),
                             match.captured(2) + match.captured(3) + match.captured(5))) {
                CheckAddress(site, name, address, findings);
            }
        }
    }
    return findings;
}

QStringList FindMalformedPages(const QDir& site) {
    static const QRegularExpression serious(
        "Error|missing|discarding|inserting|unexpected|already defined|lacks value|repeated|"
        "isn't allowed");
    QProcess tidy;
    tidy.setWorkingDirectory(site.path());
    tidy.setProcessChannelMode(QProcess::MergedChannels);
    tidy.start("tidy", QStringList{"-e", "-q", "--char-encoding", "win1252", "--gnu-emacs", "yes"} +
                           site.entryList({"*.html"}));
    if (!tidy.waitForFinished()) {
        return {"tidy: " + tidy.errorString()};
    }
    QStringList findings;
    for (const QString& line : QString::fromLocal8Bit(tidy.readAll()).split('\n')) {
        if (serious.match(line).hasMatch()) {
            findings += line;
        }
    }
    return findings;
}
