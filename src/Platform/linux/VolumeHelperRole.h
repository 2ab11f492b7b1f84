#pragma once

// The variable that makes the program's executable run as a volume helper.

inline constexpr const char *kHelperVariable = "KELDRA_VOLUME_HELPER";
inline constexpr int kHelperSocket = 3;
