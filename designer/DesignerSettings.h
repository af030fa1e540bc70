// What the designer remembers about this person.
#pragma once
#include <QString>

// Empty when nothing was kept under that name.
QString DesignerSetting(const char* name);
void KeepDesignerSetting(const char* name, const QString& value);
