#include "tools/designtext.h"

#include "text/ansi.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringDecoder>

namespace {

constexpr int kMaxDepth = 8; // of files that include files

const QRegularExpression& IncludeLine() {
    static const QRegularExpression pattern("^\\s*<!--#include\\s+(\\S+)\\s*-->\\s*$");
    return pattern;
}

bool IsInCodePage(char32_t character) {
    const QString text = QString::fromUcs4(&character, 1);
    return character != 0 && FromAnsi(ToAnsi(text)) == text;
}

// A line's bytes as text; an error where they are no UTF-8.
QString DecodeLine(const QByteArray& bytes, const SourcePlace& place, PackReport& report) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder.decode(bytes);
    if (decoder.hasError()) {
        report.Error(place, "el texto no está en UTF-8");
        return {};
    }
    CheckCharacters(text, place, report);
    return text;
}

void AppendFile(SourceText& target, const QString& folder, const QString& file,
                const SourcePlace& wanted, int depth, PackReport& report) {
    const std::optional<QByteArray> bytes = ReadSourceBytes(folder, file, wanted, report);
    if (!bytes) {
        return;
    }
    if (depth > kMaxDepth) {
        report.Error(wanted, "los ficheros se incluyen unos a otros sin fin");
        return;
    }
    QList<QByteArray> lines = bytes->split('\n');
    target.closed = lines.last().isEmpty();
    if (target.closed) {
        lines.removeLast();
    }
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QByteArray line = lines[i];
        if (line.endsWith('\r')) {
            line.chop(1);
        }
        const SourcePlace place{file, int(i) + 1};
        const QString text = DecodeLine(line, place, report);
        const QRegularExpressionMatch include = IncludeLine().match(text);
        if (include.hasMatch()) {
            const bool closed = target.closed;
            AppendFile(target, folder, include.captured(1), place, depth + 1, report);
            target.closed = closed;
        } else {
            target.lines.push_back({text, place});
        }
    }
}

} // namespace

std::optional<QByteArray> ReadSourceBytes(const QString& folder, const QString& name,
                                          const SourcePlace& wanted, PackReport& report) {
    QFile file(folder + "/" + name);
    if (!file.open(QIODevice::ReadOnly)) {
        report.Error(wanted, "no se puede leer el fichero «" + name + "»");
        return {};
    }
    QByteArray bytes = file.readAll();
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        bytes.remove(0, 3);
    }
    return bytes;
}

SourceText ReadSourceText(const QString& folder, const QString& file, const SourcePlace& wanted,
                          PackReport& report) {
    SourceText text;
    AppendFile(text, folder, file, wanted, 0, report);
    return text;
}

SourceText TextFromManifest(const QString& text, const SourcePlace& place, PackReport& report) {
    SourceText lines;
    for (const QString& line : text.split('\n')) {
        CheckCharacters(line, place, report);
        lines.lines.push_back({line, place});
    }
    return lines;
}

QString JoinLines(const SourceText& text) {
    QString joined;
    for (const SourceLine& line : text.lines) {
        joined += line.text + "\r\n";
    }
    if (!text.closed) {
        joined.chop(2);
    }
    return joined;
}

bool CheckCharacters(const QString& text, const SourcePlace& place, PackReport& report) {
    for (const char32_t character : text.toUcs4()) {
        if (!IsInCodePage(character)) {
            report.Error(place, QString("el carácter U+%1 (%2) no existe en Windows-1252")
                                    .arg(uint(character), 4, 16, QChar('0'))
                                    .arg(QString::fromUcs4(&character, 1)));
            return false;
        }
    }
    return true;
}
