#include "editor/calculator.h"

#include "core/flavour.h"
#include "forms/calcform.h"
#include "forms/mainform.h"
#include "platform/dialogs.h"
#include "store/products.h"
#include "text/numbers.h"

#include <cmath>

namespace {

constexpr int kMonths = 12;
constexpr double kPercent = 100;

// The number in a box, or nothing after telling the user: what follows is not worked out.
std::optional<double> NumberIn(const QLineEdit* box) {
    if (!IsNumeric(box->text())) {
        MsgBox("El valor «" + box->text() + "» no es un número.", BoxIcon::Warning, AppName);
        return std::nullopt;
    }
    return ParseNumber(box->text());
}

void ShowAmount(QLineEdit* box, double amount) {
    box->setText(FormatNumber(amount, kPriceShown));
}

// The percentage counts twice, in the amount and in the instalment. Odd, and on purpose: an
// instalment that a client was told once must come out the same again.
void cmdCalc_Click(CalcForm& form) {
    const auto price = NumberIn(form.txtPriceAmount);
    const auto percent = price ? NumberIn(form.txtLoanPerc) : std::nullopt;
    if (!percent) {
        return;
    }
    ShowAmount(form.txtPriceAmount, *price);
    ShowAmount(form.txtLoanAmount, *price * *percent / kPercent);
    const double amount = ParseNumber(form.txtLoanAmount->text());
    ShowAmount(form.txtInitialAmount, *price - amount);

    const auto interest = NumberIn(form.txtLoanInterest);
    const auto years = interest ? NumberIn(form.txtLoanYears) : std::nullopt;
    if (!years) {
        return;
    }
    const double rate = *interest / kMonths / kPercent;
    const double quote =
        (amount * *percent / kPercent * rate) / (1 - 1 / std::pow(1 + rate, *years * kMonths));
    if (!std::isfinite(quote)) {
        MsgBox("No se puede calcular la cuota con un interés o un plazo de cero.", BoxIcon::Warning,
               AppName);
        return;
    }
    ShowAmount(form.txtLoanQuote, quote);
}

} // namespace

void ShowCalculator() {
    CalcForm form(frmMain);
    form.txtPriceAmount->setText(frmMain->txtPriceAmount->text());
    form.txtLoanPerc->setText("100");
    form.txtLoanInterest->setText(NumberText(3.5));
    form.txtLoanYears->setText("35");
    QObject::connect(form.cmdCalc, &QPushButton::clicked, &form, [&form] { cmdCalc_Click(form); });
    QObject::connect(form.cmdClose, &QPushButton::clicked, &form, &QDialog::accept);
    form.exec();
}
