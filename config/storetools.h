// The store's tools of the configuration: moving and compacting it.
#pragma once

class ConfigForm;

// Buttons of the tools.
enum StoreTool { kToolMove = 0, kToolCompact = 1, kToolBackup = 2 };

void ConnectStoreTools(ConfigForm& form);
