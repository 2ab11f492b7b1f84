#include "Platform/Platform.h"

namespace {
Platform *currentPlatform = nullptr;
}

Platform &Platform::current() {
  Q_ASSERT(currentPlatform != nullptr);
  return *currentPlatform;
}

CurrentPlatform::CurrentPlatform(Platform &platform) : _previous(currentPlatform) {
  currentPlatform = &platform;
}

CurrentPlatform::~CurrentPlatform() {
  currentPlatform = _previous;
}
