// Standard error belongs to the program.
#pragma once
#include <cstdio>

// From now on what libraries write to standard error goes nowhere: their remarks (about damaged pictures,
// folders, fonts) would stand between the program's messages. The stream that is given back is the program's
// own. An end by an exception that nobody caught is still told there.
std::FILE* TakeStandardError();
