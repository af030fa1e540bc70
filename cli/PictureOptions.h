// What the commands that draw forms take: --scale F and --theme light|dark.
#pragma once
#include "cli/Commands.h"
#include "vcl/FormColors.h"

// 1 without the option. Both refuse with a UsageError.
double ScaleOption(const Arguments& args);
TFormColors ThemeOption(const Arguments& args);
