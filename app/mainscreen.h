// The main form as a whole: its tabs, menus and tool bar.
#pragma once

// Connects all signals of the main form but the publish buttons.
void ConnectMainScreen();

// Leaves the main form for good: validates the reference of the product on screen (a fault sets
// `cancel` and the form stays) and saves the product.
void LeaveMainScreen(bool& cancel);

// Shows one of the form's pages, a MainTab; entering the publish page saves the product and fills
// that page.
void SelectMainTab(int tab);
