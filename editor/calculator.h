// The mortgage calculator.
#pragma once

// Shows it modally for the price of the product on screen. Nothing that is entered is kept.
void ShowCalculator();
