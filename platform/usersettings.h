// The per-user settings store: texts under application, section and key.
//
// One INI file an application: <config>/<application>/settings.ini, where <config> is
// $XDG_CONFIG_HOME or ~/.config. The file is readable by its user alone, since it holds passwords.
// A file that can't be read as settings is set aside under another name before the first write.
#pragma once

#include <QString>

// The stored text, or `defaultValue` when application, section or key is missing.
QString GetSetting(const QString& application, const QString& section, const QString& key,
                   const QString& defaultValue = {});

// On disk when it returns; a failure is ignored, since losing a preference must not stop the work.
void SaveSetting(const QString& application, const QString& section, const QString& key,
                 const QString& value);

// Several SaveSettings as one write: call Begin, then save, then Commit.
void BeginSettings();
void CommitSettings();

// Where the settings of an application lie.
QString SettingsPath(const QString& application);
