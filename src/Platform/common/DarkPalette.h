#pragma once

#include <QPalette>

/// Whether windows with this palette are dark.
inline bool hasDarkWindows(const QPalette &palette) {
  return palette.color(QPalette::Window).lightnessF() < 0.5F;
}
