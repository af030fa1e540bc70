// Lines of text in a dialog.
#pragma once
class TStrings;

// Writes into the lines only when the user changed them and confirms, and is true then.
bool EditLines(TStrings& lines);
