#pragma once

// Makes the program's widgets known to screen readers: the table as a list, a cell as a list item
// with its buttons, an announcement as a notification. Call it once, after QApplication is created
// and before the first widget; further calls do nothing.

void installAccessibility();
