#pragma once

/// Makes all windows dark or light, also where the desktop gives its programs the other colours.
/// Leaves the colours as they are where they are so already.
void setDarkAppearance(bool dark);
