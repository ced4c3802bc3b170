#include "engine/spanish.h"

#include "engine/cell.h"

#include <QString>
#include <algorithm>
#include <cstring>
#include <memory>
#include <sqlite3.h>
#include <unicode/ucol.h>
#include <unicode/utf8.h>
#include <vector>

namespace {

constexpr int kFunctionFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;

// Bytes. Each "%" of a pattern is a call within a call, which SQLite itself bounds like this.
constexpr int kLongestPattern = 50'000;

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

// A text with its capital letters beyond ASCII made small, at one place until the next call; those
// of ASCII are left to sqlite3_strlike. A text of ASCII alone stays where it is.
class FoldedText {
public:
    const char* Fold(sqlite3_value* value) {
        const uchar* text = sqlite3_value_text(value);
        const int size = sqlite3_value_bytes(value);
        if (std::all_of(text, text + size, [](uchar byte) { return U8_IS_SINGLE(byte); })) {
            return reinterpret_cast<const char*>(text);
        }
        if (buffer.size() <= size_t(size) * kGrowth) {
            buffer.resize(size_t(size) * kGrowth + 1);
        }
        char* to = buffer.data();
        int length = 0;
        for (int at = 0; at < size;) {
            char32_t character = 0;
            U8_NEXT_OR_FFFD(text, at, size, character);
            const bool ascii = character < 0x80;
            character = ascii ? character : QChar::toCaseFolded(character);
            U8_APPEND_UNSAFE(to, length, character);
        }
        to[length] = '\0';
        return to;
    }

private:
    static constexpr int kGrowth = 3; // a byte of a broken sequence becomes U+FFFD
    std::vector<char> buffer;
};

// "X like Y escape Z" calls like(Y, X, Z).
void LikeFunction(sqlite3_context* context, int count, sqlite3_value** arguments) {
    for (int argument = 0; argument < count; ++argument) {
        if (sqlite3_value_type(arguments[argument]) == SQLITE_NULL) {
            return; // the result stays Null
        }
    }
    if (sqlite3_value_bytes(arguments[0]) > kLongestPattern) {
        sqlite3_result_error_toobig(context);
        return;
    }
    static FoldedText pattern;
    static FoldedText text;
    const auto escape = count == 3 ? *sqlite3_value_text(arguments[2]) : uchar(0);
    sqlite3_result_int(
        context, sqlite3_strlike(pattern.Fold(arguments[0]), text.Fold(arguments[1]), escape) == 0);
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
