#include "Interface/WindowHints.h"

bool windowsAreComposited() {
  return true;
}

bool windowsCanBePlaced() {
  return true;
}

bool windowsCanFade() {
  return true;
}

void keepOutOfTaskbar(const QWidget *) {}
