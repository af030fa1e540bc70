// Palette, actions and the editors that belong to each page.
#pragma once

namespace VRX_RegMain {
void Register();
}
