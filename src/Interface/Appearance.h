#pragma once

#include <QColor>
#include <optional>

/// Makes all windows dark or light, whatever colours the desktop gives its programs. When they are
/// so already, changes only the accent.
void setDarkAppearance(bool dark, const std::optional<QColor> &accent = {});
