// Output of one product: its page, its printable sheet, a mail about it.
#pragma once

#include <QString>

enum class SheetKind {
    Product, // its page
    Layout,  // its printable sheet
    Report   // no design has one: every action tells that it failed
};

enum class SheetAction {
    Show, // in the system's browser
    Print,
    Mail // opens a mail about the product
};

// Saves the product on screen, but for a Report, and makes its page. A failure is told to the user.
void ShowSheet(SheetKind kind, const QString& productId, SheetAction action);
