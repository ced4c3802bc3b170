// Spanish order and matching of texts: the collation SPANISH and the operator like, for the store.
#pragma once

#include <QStringView>

struct sqlite3;

// Negative, 0 or positive, by the Spanish order of the Unicode collation rules: "ñ" is a letter of
// its own after "n"; accents count only where the texts are otherwise equal, case never does.
int CompareSpanish(QStringView left, QStringView right);

// Makes the collation SPANISH and the functions like() and cstr() known to a connection. like()
// compares without regard to case, but with accents; "%" stands for any text, "_" for one
// character. cstr() is the plain decimal text of a number. Returns the engine's result code.
int InstallSpanish(sqlite3* handle);
