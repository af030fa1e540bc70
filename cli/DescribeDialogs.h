// vrx describe --dialogs: what the dialogs of a package consist of.
#pragma once
#include "cli/Commands.h"

int DescribeDialogs(const Arguments& args, Console& console);
