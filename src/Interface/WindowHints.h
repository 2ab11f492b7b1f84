#pragma once

// What the window system must be told, or asked, beyond what Qt does.

class QWidget;

/// Whether translucent windows show as such. Without it, a window's transparent parts are black.
bool windowsAreComposited();

/// Whether a window can be put at a place of the screen. Where it cannot, the desktop chooses.
bool windowsCanBePlaced();

/// Whether a window's opacity can be changed while it is shown.
bool windowsCanFade();

/// Keeps a window out of task bars and pagers. Call it each time before the window is mapped.
void keepOutOfTaskbar(const QWidget *window);
