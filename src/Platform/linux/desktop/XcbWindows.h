#pragma once

// What windows can do on the X server, if that is the window system, and the hints that Qt does not
// set.

#include "Platform/Desktop.h"

WindowAbilities windowAbilitiesNow();

/// Does nothing on other window systems. See `Desktop::keepOutOfTaskbar`.
void keepOutOfXcbTaskbar(const QWidget &window);
