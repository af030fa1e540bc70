// Forms and their components by the words of a command line.
#pragma once
#include "ide/FormSession.h"

// Errors name the file.
std::unique_ptr<FormSession> OpenForm(const QString& file);
// "Button1.Font.Color": the component, and the rest of the path. What stands in a frame has the frame's name
// in front ("Frame1.Button1.Caption").
TComponent& ComponentOf(FormSession& session, const QString& text, QByteArray& path);
// Back into its own file unless somebody else has changed it meanwhile, or to another one.
void WriteForm(FormSession& session, const QString& file);
