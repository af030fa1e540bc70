// The library's spin edit is the framework's.
#pragma once
#include "dclstd/SpinEdit.h"

using TVRXSpinEdit = SpinEdit;
