// The file of the settings: sections of "name=value" lines, as many programs write them. Every value is a
// text: nothing in the file is decoded into any other object, whoever wrote it.
#pragma once
#include <QSettings>

// Keys are paths with "/"; the first part of a path is the section. A backslash stands for "/" in the file,
// and other signs of a key may be written as %41 or %U20AC. Values may stand in quotes and have the escapes
// \\ \" \n \r \t and \x41.
QSettings::Format SettingsFormat();
