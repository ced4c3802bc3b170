// Bringing the generated files of one publish to an FTP server: only those that differ from what
// was last sent.
#pragma once

#include "generator/outputs.h"

#include <vector>

// Connects, opens the remote folder and sends. False when the connection failed or the run was
// cancelled; a failed transfer counts as sent (the step list shows it), since the workflow has
// always recorded it so.
bool SendFiles(std::vector<OutputFile>& files);
