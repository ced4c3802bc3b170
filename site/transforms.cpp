#include "site/transforms.h"

namespace {

constexpr char kDocWriteMark[] = ".DOCWRITE";

// Accents and separators of a file suffix, in the order in which they are replaced.
constexpr char16_t kSuffixFrom[] = u"\\/áàèéíìïòóúùüñ '.";
constexpr char16_t kSuffixTo[] = u"--aaeeiiioouuun---";
static_assert(std::size(kSuffixFrom) == std::size(kSuffixTo));

template <typename Text> Text TrimBlanksOf(const Text& text) {
    qsizetype from = 0;
    qsizetype to = text.size();
    while (from < to && text[from] == ' ') {
        ++from;
    }
    while (to > from && text[to - 1] == ' ') {
        --to;
    }
    return to - from == text.size() ? text : text.mid(from, to - from);
}

} // namespace

QString TrimBlanks(const QString& text) {
    return TrimBlanksOf(text);
}

QByteArray TrimBlanks(const QByteArray& text) {
    return TrimBlanksOf(text);
}

QByteArray TextToBytes(const QByteArray& text) {
    if (text.isEmpty()) {
        return QByteArray(1, '\0');
    }
    const qsizetype end = text.indexOf('\0');
    return end < 0 ? text : text.left(end).leftJustified(text.size(), '\0');
}

QString GetParam(const QString& text, const QString& key) {
    const qsizetype place = text.isEmpty() ? -1 : text.indexOf(key);
    const qsizetype equals = place < 0 ? -1 : text.indexOf('=', place);
    if (equals < 0) {
        return {};
    }
    const qsizetype start = equals + 1;
    const qsizetype end = text.indexOf(';', start);
    const qsizetype length = end < 0 ? text.size() - start - 1 : end - start;
    return length > 0 ? TrimBlanks(text.mid(start, length)) : QString();
}

QStringList SplitFields(const QString& text, const QString& separator) {
    return separator.isEmpty() ? QStringList(text) : text.split(separator);
}

QString NthField(const QString& text, int n, const QString& separator) {
    return SplitFields(text, separator).value(n - 1);
}

QString EscapeQuotes(const QString& text) {
    QString escaped = text;
    return escaped.replace('\'', "\\'");
}

QByteArray EscapeQuotes(const QByteArray& text) {
    QByteArray escaped = text;
    return escaped.replace('\'', "\\'");
}

QString CrLfToBr(const QString& text) {
    QString lines = text;
    return lines.replace("\r\n", "<br>");
}

QByteArray ToDocWrite(const QByteArray& text) {
    QByteArray statements;
    qsizetype from = 0;
    for (bool more = true; more;) {
        const qsizetype end = text.indexOf("\r\n", from);
        more = end >= 0;
        const QByteArray line = text.mid(from, more ? end - from : -1);
        statements += "document.writeln('" + EscapeQuotes(line) + "');\r\n";
        from = end + 2;
    }
    return statements;
}

QByteArray ReplaceTag(const QByteArray& text, const QByteArray& tag, const QByteArray& value) {
    const QByteArray name = TrimBlanks(tag);
    if (name.isEmpty() || !text.contains(name)) {
        return text;
    }
    QByteArray result = text;
    const QByteArray scripted = name + kDocWriteMark;
    if (result.contains(scripted)) {
        result.replace(scripted, ToDocWrite(value));
    }
    return result.replace(name, value);
}

QString MakeFileSuffix(const QString& text) {
    QString suffix = text.toLower();
    for (qsizetype i = 0; kSuffixFrom[i] != u'\0'; ++i) {
        suffix.replace(QChar(kSuffixFrom[i]), QChar(kSuffixTo[i]));
    }
    return suffix.isEmpty() ? suffix : "-" + suffix;
}

QByteArray FirstBetween(const QByteArray& text, const QByteArray& openMark,
                        const QByteArray& closeMark, qsizetype& from) {
    const qsizetype open = text.indexOf(openMark, qMax<qsizetype>(from, 0));
    if (open < 0) {
        return {};
    }
    const qsizetype start = open + openMark.size();
    const qsizetype close = text.indexOf(closeMark, start);
    if (close < 0) {
        return {};
    }
    from = close + 1;
    return text.mid(start, close - start);
}
