// The stored rule of what no form file ever holds, whatever its value is.
#pragma once
#include "rtl/PropInfo.h"

bool NeverStoredRule(const TPersistent& instance);
bool IsNeverStored(const TPropInfo& prop);
