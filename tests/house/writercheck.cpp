#include "writercheck.h"

#include <QRegularExpression>

namespace {

// Whoever drives a cursor changes it; that is what the array is for.
constexpr char kCursors[] = "adcData";

// Value, then its parts, in front of what changes it. "%1" is the value's name.
constexpr char kPart[] = R"re((?<![\w.>"])%1\b(?:\[[^\]]*\]|\.\w+\b(?!\())*)re";
constexpr char kChange[] =
    R"re((?:\s*(?:=(?!=)|[-+*/%|&^]=|\+\+|--)|\.(?:push_back|pop_back|emplace\w*|insert|erase|)re"
    R"re(append|prepend|replace|remove\w*|truncate|chop|clear|resize|reserve|assign|swap|fill)\())re";
constexpr char kTaken[] = R"re((?:\+\+|--|[=(,{]\s*&|(?:move|exchange|swap)\()%1\b)re";
constexpr char kReference[] = R"re(^(?!.*\bconst\b).*&\s*\w+\s*[=:]\s*%1\b)re";

// Comments go, and what stands between quotes; line ends stay.
QString BareCode(QString text) {
    static const QRegularExpression kNoCode(R"re(//[^\n]*|"(?:\\.|[^"\\\n])*")re");
    return text.replace(kNoCode, "\"\"");
}

// Header by value.
QMap<QString, QString> ReadValues(const SourceTexts& texts) {
    static const QRegularExpression kExtern(R"re(^extern\s+(?!const\b)[^;(]*?(\w+)\s*;)re",
                                            QRegularExpression::MultilineOption);
    QMap<QString, QString> values;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        auto found = kExtern.globalMatch(text.key().endsWith(u".h") ? BareCode(*text) : QString());
        while (found.hasNext()) {
            values.insert(found.next().captured(1), text.key());
        }
    }
    return values;
}

QRegularExpression WriteOf(const QString& value) {
    QStringList patterns = {QString(kPart) + kChange, kTaken};
    if (value != kCursors) {
        patterns += kReference;
    }
    return QRegularExpression(patterns.join(u'|').replace("%1", value));
}

} // namespace

QStringList FindForeignWrites(const SourceTexts& texts) {
    QMap<QString, QStringList> linesOf;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        linesOf[text.key()] = BareCode(*text).split(u'\n');
    }
    QStringList faults;
    const QMap<QString, QString> values = ReadValues(texts);
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        const QRegularExpression write = WriteOf(value.key());
        const QString owner = value->chopped(1) + "cpp";
        for (auto lines = linesOf.cbegin(); lines != linesOf.cend(); ++lines) {
            for (int line = 0; lines.key() != owner && line < lines->size(); ++line) {
                if (lines->at(line).contains(value.key()) &&
                    write.match(lines->at(line)).hasMatch()) {
                    faults += QStringLiteral("%1:%2 writes %3 of %4")
                                  .arg(lines.key())
                                  .arg(line + 1)
                                  .arg(value.key(), *value);
                }
            }
        }
    }
    return faults;
}
