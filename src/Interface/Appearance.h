#pragma once

#include <QColor>
#include <optional>

/// Makes all windows dark or light, also where the desktop gives its programs the other colours.
/// Leaves the colours as they are where they are so already, but for the accent.
void setDarkAppearance(bool dark, const std::optional<QColor> &accent = {});
