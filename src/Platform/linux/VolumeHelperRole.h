#pragma once

// How the program's own executable is told that it is to look at volumes.

inline constexpr const char *kHelperVariable = "KELDRA_VOLUME_HELPER";
inline constexpr int kHelperSocket = 3;
