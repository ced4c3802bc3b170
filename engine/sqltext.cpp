#include "engine/sqltext.h"

#include "engine/storeerror.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

enum class TokenKind { Word, Number, Text, Mark, Space };

struct Token {
    TokenKind kind = TokenKind::Space;
    QString text; // as the engine shall see it
};

[[noreturn]] void Refuse(const QString& reason) {
    throw StoreError(kErrStatement, QStringLiteral("La consulta no es válida: ") + reason);
}

bool IsWordCharacter(QChar character) {
    return character.isLetterOrNumber() || character == u'_' || character == u'$' ||
           character.isSurrogate();
}

bool Is(const Token& token, QLatin1String word) {
    return token.kind == TokenKind::Word && token.text.compare(word, Qt::CaseInsensitive) == 0;
}

bool IsMark(const Token& token, QChar mark) {
    return token.kind == TokenKind::Mark && token.text == mark;
}

class Tokenizer {
public:
    explicit Tokenizer(const QString& statement) : text(statement) {}

    std::vector<Token> Run() {
        std::vector<Token> tokens;
        while (at < text.size()) {
            tokens.push_back(Next());
        }
        return tokens;
    }

private:
    Token Next() {
        const QChar first = text[at];
        if (first.isNull()) {
            Refuse(QStringLiteral("contiene un carácter nulo"));
        }
        if (first.isSpace()) {
            return Take(TokenKind::Space, EndWhile([](QChar c) { return c.isSpace(); }));
        }
        if (first == u'\'' || first == u'"') {
            return TakeQuoted(first);
        }
        if (first == u'[' || first == u'`') {
            return Take(TokenKind::Word, EndBehind(first == u'[' ? u"]" : u"`"));
        }
        if (QStringView(text).mid(at).startsWith(u"--")) {
            return Take(TokenKind::Space, EndWhile([](QChar c) { return c != u'\n'; }));
        }
        if (QStringView(text).mid(at).startsWith(u"/*")) {
            return Take(TokenKind::Space, EndBehind(u"*/"));
        }
        if (first.isDigit()) {
            return Take(TokenKind::Number,
                        EndWhile([](QChar c) { return c == u'.' || IsWordCharacter(c); }));
        }
        if (IsWordCharacter(first)) {
            return Take(TokenKind::Word, EndWhile(IsWordCharacter));
        }
        return Take(TokenKind::Mark, at + 1);
    }

    template <typename Condition> qsizetype EndWhile(Condition condition) const {
        qsizetype end = at;
        while (end < text.size() && condition(text[end])) {
            ++end;
        }
        return end;
    }

    qsizetype EndBehind(QStringView closing) const {
        const qsizetype found = text.indexOf(closing, at + 1);
        if (found < 0) {
            Refuse(QStringLiteral("falta %1").arg(closing));
        }
        return found + closing.size();
    }

    Token Take(TokenKind kind, qsizetype end) {
        Token token{kind, text.mid(at, end - at)};
        at = end;
        return token;
    }

    // A text in either kind of quotes, its own quote doubled inside, as a literal of the engine.
    Token TakeQuoted(QChar quote) {
        QString literal = QStringLiteral("'");
        for (++at; at < text.size(); ++at) {
            const QChar character = text[at];
            if (character == quote) {
                if (at + 1 >= text.size() || text[at + 1] != quote) {
                    ++at;
                    return {TokenKind::Text, literal + u'\''};
                }
                ++at;
            }
            literal += character;
            if (character == u'\'') {
                literal += u'\'';
            } else if (character.isNull()) {
                Refuse(QStringLiteral("contiene un carácter nulo"));
            }
        }
        Refuse(QStringLiteral("falta la comilla de cierre (%1)").arg(quote));
    }

    const QString& text;
    qsizetype at = 0;
};

// The tokens that mean something, by their places in the whole list.
std::vector<size_t> MeaningfulTokens(const std::vector<Token>& tokens) {
    std::vector<size_t> places;
    for (size_t place = 0; place < tokens.size(); ++place) {
        if (tokens[place].kind != TokenKind::Space) {
            places.push_back(place);
        }
    }
    while (!places.empty() && IsMark(tokens[places.back()], u';')) {
        places.pop_back();
    }
    return places;
}

// An open query: the statement itself or one in parentheses.
struct Scope {
    bool isQuery = false;
    QString limit; // of its TOP
};

constexpr std::array kCompounds = {QLatin1String("union"), QLatin1String("except"),
                                   QLatin1String("intersect")};
constexpr std::array kGrouping = {QLatin1String("distinct"), QLatin1String("group"),
                                  QLatin1String("having"), QLatin1String("window")};
constexpr std::array kAggregates = {
    QLatin1String("count"), QLatin1String("max"),          QLatin1String("min"),
    QLatin1String("sum"),   QLatin1String("avg"),          QLatin1String("total"),
    QLatin1String("first"), QLatin1String("group_concat"), QLatin1String("last")};
// What may follow the one table and its alias.
constexpr std::array kBehindTable = {QLatin1String("where"), QLatin1String("order"),
                                     QLatin1String("limit")};

template <typename Words> bool IsAny(const Token& token, const Words& words) {
    return std::any_of(words.begin(), words.end(),
                       [&token](QLatin1String word) { return Is(token, word); });
}

class Translator {
public:
    explicit Translator(std::vector<Token> statement)
        : tokens(std::move(statement)), places(MeaningfulTokens(tokens)) {}

    StatementText Run() {
        if (places.empty() || !Is(At(0), QLatin1String("select"))) {
            Refuse(QStringLiteral("debe empezar por SELECT"));
        }
        scopes.push_back({true, {}});
        for (size_t place = 0; place < places.size(); ++place) {
            Visit(place);
        }
        if (scopes.size() != 1) {
            Refuse(QStringLiteral("falta un paréntesis de cierre"));
        }
        At(places.size() - 1).text += scopes.back().limit;

        StatementText result;
        result.sql = Joined();
        if (singleTable && fromPlace > 0 && IsPlainTable()) {
            Token& lastOfList = At(fromPlace - 1);
            lastOfList.text += QStringLiteral(", _rowid_");
            result.sqlWithRowId = Joined();
        }
        return result;
    }

private:
    Token& At(size_t place) { return tokens[places[place]]; }
    bool Has(size_t place) const { return place < places.size(); }

    void Visit(size_t place) {
        const Token& token = At(place);
        if (IsMark(token, u';')) {
            Refuse(QStringLiteral("contiene más de una sentencia"));
        }
        if (IsMark(token, u'(')) {
            const bool isQuery = Has(place + 1) && Is(At(place + 1), QLatin1String("select"));
            scopes.push_back({isQuery, {}});
        } else if (IsMark(token, u')')) {
            CloseScope(place);
        } else if (Is(token, QLatin1String("select"))) {
            TakeTop(place);
        } else if (IsAny(token, kCompounds)) {
            RefuseLimitedCompound();
            singleTable = singleTable && scopes.size() > 1;
        } else {
            NoteShape(place);
        }
    }

    void CloseScope(size_t place) {
        if (scopes.size() == 1) {
            Refuse(QStringLiteral("sobra un paréntesis de cierre"));
        }
        At(place).text.prepend(scopes.back().limit);
        scopes.pop_back();
    }

    // "SELECT [DISTINCT] TOP n": the two tokens go, the limit waits for the query's end.
    void TakeTop(size_t place) {
        size_t next = place + 1;
        if (Has(next) &&
            (Is(At(next), QLatin1String("distinct")) || Is(At(next), QLatin1String("all")))) {
            ++next;
        }
        if (!Has(next + 1) || !Is(At(next), QLatin1String("top")) ||
            At(next + 1).kind != TokenKind::Number) {
            return;
        }
        scopes.back().limit = QStringLiteral(" LIMIT ") + At(next + 1).text;
        At(next).text.clear();
        At(next + 1).text.clear();
    }

    // LIMIT would count the rows of the whole compound, not those of its part.
    void RefuseLimitedCompound() {
        if (!scopes.back().limit.isEmpty()) {
            Refuse(QStringLiteral("TOP no puede usarse en una consulta de unión"));
        }
    }

    void NoteShape(size_t place) {
        const Token& token = At(place);
        const bool outermost = std::none_of(scopes.begin() + 1, scopes.end(),
                                            [](const Scope& s) { return s.isQuery; });
        if (!outermost) {
            return;
        }
        if (IsAny(token, kAggregates) && Has(place + 1) && IsMark(At(place + 1), u'(')) {
            singleTable = false;
        }
        if (scopes.size() > 1) {
            return;
        }
        if (IsAny(token, kGrouping)) {
            singleTable = false;
        }
        if (fromPlace == 0 && Is(token, QLatin1String("from"))) {
            fromPlace = place;
        }
    }

    // FROM table [[AS] alias], then the end or a clause that keeps the rows apart.
    bool IsPlainTable() {
        size_t place = fromPlace + 1;
        if (!Has(place) || At(place).kind != TokenKind::Word) {
            return false;
        }
        ++place;
        if (Has(place) && Is(At(place), QLatin1String("as"))) {
            ++place;
        }
        if (Has(place) && At(place).kind == TokenKind::Word && !IsAny(At(place), kBehindTable)) {
            ++place;
        }
        return !Has(place) || IsAny(At(place), kBehindTable);
    }

    QByteArray Joined() const {
        QString joined;
        for (size_t place = 0; !places.empty() && place <= places.back(); ++place) {
            joined += tokens[place].text;
        }
        return joined.toUtf8();
    }

    std::vector<Token> tokens;
    std::vector<size_t> places;
    std::vector<Scope> scopes;
    size_t fromPlace = 0; // 0: none seen
    bool singleTable = true;
};

} // namespace

StatementText TranslateStatement(const QString& statement) {
    return Translator(Tokenizer(statement).Run()).Run();
}
