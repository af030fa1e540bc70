// Icons of the standard components.
#pragma once

void RegisterStandardIcons();
