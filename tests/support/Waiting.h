// Waiting for a fact. The limit only ends a test that would hang; it is far beyond what a slow and busy
// machine needs.
#pragma once

inline constexpr int WaitLimit = 600'000;  // milliseconds
