// The per-user settings store: texts under application, section and key.
//
// One INI file an application: <config>/<application>/settings.ini, where <config> is
// $XDG_CONFIG_HOME or ~/.config. The file is readable by its user alone, since it holds passwords.
// A file that can't be read as settings (not UTF-8, NUL bytes, no section, over 16 MiB) is set
// aside as "settings.ini.dañado-1" and so on before the first write.
//
// The file is UTF-8 and may be written by hand: "[section]", then "key=value" to the end of the
// line, whatever the value holds; lines that begin with ";" or "#" are comments and stay. A value
// stands in quotes only if it begins with one, begins or ends with a blank, or holds a line end;
// inside them \\ \" \n \r \0 are escapes. Section and key are compared without regard to case and
// hold no "=", "]" or line end.
#pragma once

#include <QString>

// The stored text, or `defaultValue` when application, section or key is missing.
QString GetSetting(const QString& application, const QString& section, const QString& key,
                   const QString& defaultValue = {});

// On disk when it returns; a failure is ignored, since losing a preference must not stop the work.
void SaveSetting(const QString& application, const QString& section, const QString& key,
                 const QString& value);

// Several calls as one reading and at most one writing of the file: Begin, then get or save, then
// Commit. May be nested; the outermost Commit writes.
void BeginSettings();
void CommitSettings();

// Where the settings of an application lie.
QString SettingsPath(const QString& application);
