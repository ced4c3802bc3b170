// The page "Actualizar Web": the design, the destination, the steps of a run and how far it is.
#pragma once

// The page is told of every run from now on, as long as the main form lives.
void ConnectPublishPage();

// Fills the page; `reloadPreview` reads the template's identity again.
void RefreshPublishTab(bool reloadPreview);
