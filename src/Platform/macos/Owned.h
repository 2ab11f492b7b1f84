#pragma once

// Ownership of objects from the system's C interfaces.
//
//   const Owned<CFURLRef> location(CFBundleCopyBundleURL(bundle));
//   use(location.get());
//
// Put the result of a function with Create or Copy in its name into an `Owned` at once, and every
// object of the I/O registry too. The result of any other function has another owner, and is valid
// while that owner exists.

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOKitLib.h>

#include <utility>

inline void giveBack(CFTypeRef reference) {
  CFRelease(reference);
}
inline void giveBack(io_object_t object) {
  IOObjectRelease(object);
}

template <typename Reference>
class Owned {
 public:
  Owned() = default;
  explicit Owned(Reference reference) : _reference(reference) {}
  Owned(Owned &&other) noexcept : _reference(std::exchange(other._reference, Reference{})) {}
  Owned &operator=(Owned &&other) noexcept {
    std::swap(_reference, other._reference);
    return *this;
  }
  ~Owned() {
    if (*this) giveBack(_reference);
  }

  Reference get() const { return _reference; }
  explicit operator bool() const { return _reference != Reference{}; }

 private:
  Reference _reference{};
};
