#include "engine/spanish.h"

#include "engine/cell.h"

#include <QString>
#include <cstring>
#include <memory>
#include <sqlite3.h>
#include <unicode/ucol.h>
#include <vector>

namespace {

constexpr int kFunctionFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;

struct CollatorCloser {
    void operator()(UCollator* collator) const { ucol_close(collator); }
};

UCollator* SpanishCollator() {
    static const std::unique_ptr<UCollator, CollatorCloser> collator = [] {
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<UCollator, CollatorCloser> made(ucol_open("es", &status));
        if (U_FAILURE(status)) {
            qFatal("ICU has no collation data");
        }
        ucol_setStrength(made.get(), UCOL_SECONDARY);
        return made;
    }();
    return collator.get();
}

int CollateSpanish(void* /*context*/, int leftSize, const void* left, int rightSize,
                   const void* right) {
    if (leftSize == rightSize && std::memcmp(left, right, leftSize) == 0) {
        return 0;
    }
    UErrorCode status = U_ZERO_ERROR;
    return ucol_strcollUTF8(SpanishCollator(), static_cast<const char*>(left), leftSize,
                            static_cast<const char*>(right), rightSize, &status);
}

// A pattern of like, folded; the two wildcards are values beyond Unicode.
using LikePattern = std::vector<char32_t>;
constexpr char32_t kAnyText = 0x110000;
constexpr char32_t kAnyCharacter = 0x110001;

struct Utf8Text {
    const uchar* next;
    const uchar* end;
};

// Takes the next character off a text, not folded; a broken sequence is read byte by byte.
char32_t TakeCharacter(Utf8Text& text) {
    const uchar lead = *text.next++;
    const int more = lead < 0xC2 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : lead < 0xF5 ? 3 : 0;
    if (more == 0 || text.end - text.next < more) {
        return lead;
    }
    char32_t character = lead & (0x3F >> more);
    for (int byte = 0; byte < more; ++byte) {
        if ((text.next[byte] & 0xC0) != 0x80) {
            return lead;
        }
        character = character << 6 | (text.next[byte] & 0x3F);
    }
    text.next += more;
    return character;
}

char32_t FoldCharacter(char32_t character) {
    if (character < 0x80) {
        return character >= 'A' && character <= 'Z' ? character | 0x20 : character;
    }
    return QChar::toCaseFolded(character);
}

LikePattern ReadPattern(Utf8Text text, char32_t escape) {
    LikePattern pattern;
    while (text.next < text.end) {
        char32_t character = TakeCharacter(text);
        if (character == escape && text.next < text.end) {
            character = FoldCharacter(TakeCharacter(text));
        } else if (character == '%') {
            character = kAnyText;
        } else if (character == '_') {
            character = kAnyCharacter;
        } else {
            character = FoldCharacter(character);
        }
        if (character != kAnyText || pattern.empty() || pattern.back() != kAnyText) {
            pattern.push_back(character);
        }
    }
    return pattern;
}

// Only the last "%" passed has to be tried at other places, so that the time stays bounded by the
// product of both lengths.
bool MatchesPattern(const LikePattern& pattern, Utf8Text text) {
    size_t at = 0;
    size_t retryAt = 0; // pattern place behind the last "%"; 0: none passed
    Utf8Text retryText = text;
    while (text.next < text.end) {
        if (at < pattern.size() && pattern[at] == kAnyText) {
            retryAt = ++at;
            retryText = text;
            if (at == pattern.size()) {
                return true;
            }
            continue;
        }
        const char32_t character = FoldCharacter(TakeCharacter(text));
        if (at < pattern.size() && (pattern[at] == character || pattern[at] == kAnyCharacter)) {
            ++at;
            continue;
        }
        if (retryAt == 0) {
            return false;
        }
        TakeCharacter(retryText);
        text = retryText;
        at = retryAt;
    }
    while (at < pattern.size() && pattern[at] == kAnyText) {
        ++at;
    }
    return at == pattern.size();
}

Utf8Text TextOf(sqlite3_value* value) {
    const uchar* text = sqlite3_value_text(value);
    return {text, text + sqlite3_value_bytes(value)};
}

// "X like Y escape Z" calls like(Y, X, Z).
void LikeFunction(sqlite3_context* context, int count, sqlite3_value** arguments) {
    for (int argument = 0; argument < count; ++argument) {
        if (sqlite3_value_type(arguments[argument]) == SQLITE_NULL) {
            return; // the result stays Null
        }
    }
    auto* pattern = static_cast<LikePattern*>(sqlite3_get_auxdata(context, 0));
    std::unique_ptr<LikePattern> fresh;
    if (pattern == nullptr) {
        Utf8Text escape = count == 3 ? TextOf(arguments[2]) : Utf8Text{nullptr, nullptr};
        const char32_t escapeCharacter =
            escape.next < escape.end ? TakeCharacter(escape) : kAnyText;
        fresh = std::make_unique<LikePattern>(ReadPattern(TextOf(arguments[0]), escapeCharacter));
        pattern = fresh.get();
    }
    sqlite3_result_int(context, MatchesPattern(*pattern, TextOf(arguments[1])));
    if (fresh != nullptr && count == 2) { // the engine keeps it while the pattern is the same
        sqlite3_set_auxdata(context, 0, fresh.release(),
                            [](void* kept) { delete static_cast<LikePattern*>(kept); });
    }
}

void CstrFunction(sqlite3_context* context, int /*count*/, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) == SQLITE_FLOAT) {
        const QByteArray text = CellText(sqlite3_value_double(arguments[0])).toUtf8();
        sqlite3_result_text(context, text.constData(), static_cast<int>(text.size()),
                            SQLITE_TRANSIENT);
        return;
    }
    const uchar* text = sqlite3_value_text(arguments[0]);
    sqlite3_result_text(context, reinterpret_cast<const char*>(text),
                        sqlite3_value_bytes(arguments[0]), SQLITE_TRANSIENT);
}

} // namespace

int CompareSpanish(QStringView left, QStringView right) {
    return ucol_strcoll(SpanishCollator(), left.utf16(), static_cast<int32_t>(left.size()),
                        right.utf16(), static_cast<int32_t>(right.size()));
}

int InstallSpanish(sqlite3* handle) {
    struct Function {
        const char* name;
        int arguments;
        void (*call)(sqlite3_context*, int, sqlite3_value**);
    };
    static constexpr Function kFunctions[] = {
        {"like", 2, LikeFunction}, {"like", 3, LikeFunction}, {"cstr", 1, CstrFunction}};

    int code = sqlite3_create_collation(handle, "SPANISH", SQLITE_UTF8, nullptr, CollateSpanish);
    for (const Function& function : kFunctions) {
        if (code == SQLITE_OK) {
            code =
                sqlite3_create_function(handle, function.name, function.arguments, kFunctionFlags,
                                        nullptr, function.call, nullptr, nullptr);
        }
    }
    return code;
}
