// The commands of the first page: tool bar and actions menu.
#pragma once

#include <QString>

// Press of a tool bar button by its key. For Search the button is already down or up.
void PressButton(const QString& key);

void ConnectActions();
