// The product's reference: what it may hold, and that no other product has it. Works on
// txtProductRef.
#pragma once

#include <QString>

inline constexpr int kRefLength = 10; // characters at most

enum class RefFault { None = 0, BadCharacter = 1, TooLong = 2 };

// Letters A to Z, digits, "-" and "_".
RefFault RefCharsOk();

// No other product than the open one has this reference. The text goes into the statement as it
// stands, so RefCharsOk comes first.
bool IsRefUnique();

// Turns the box's text to upper case, the caret kept; returns it.
QString UppercaseRef();

// `cancel` tells whether the reference is refused; then, unless silent, the user has been told why
// and the focus is back in the box. Always accepted when the list is empty.
void ValidateProductRef(bool& cancel, bool silent);

// A reference for a new product: its number, or "REF" and two digits where another product has that
// already.
QString FreeProductRef(const QString& productId);
