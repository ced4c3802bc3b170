// The automatic update: some seconds after the start the maker's service is asked for a newer
// build. If the user agrees, its installer is downloaded into the catalogue's folder and started,
// and the program ends. Everything shows in lblUpdate, goes on while the user works, and waits
// where it would come between: a publish and an open dialog are let finish.
#pragma once

extern bool UpdateDownloading; // the user has accepted; false at start, never cleared after that

// Once for each main form. A run without a user never looks for a newer build.
void ConnectUpdate();
