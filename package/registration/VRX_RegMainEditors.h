// Editors of value types, wherever such a value is.
#pragma once

namespace VRX_RegMainEditors {
void Register();
}
