// The search dialog: zones, words and prices become one condition for the list.
#pragma once

// Shows the dialog modally. An empty condition releases the tool bar button and leaves the list as
// it was.
void ShowSearch();
