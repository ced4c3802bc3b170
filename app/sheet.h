// Output of one product: its page, its printable sheet, a mail about it.
#pragma once

#include <QString>

// `spec` is a kind ("PRODUCT", "LAYOUT" or "REPORT") and a product number joined by "|". `action`:
// 0 shows the page in the system's browser, 1 prints it, 2 opens a mail about the product. A
// failure is told to the user.
void ShowSheet(const QString& spec, int action);
