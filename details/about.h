// Help, about box and links.
#pragma once

// Opens the user manual beside the program.
void OpenManual();

void ShowAbout();

// Opens the maker's web site, if the program was deployed with one.
void OpenHomePage();
