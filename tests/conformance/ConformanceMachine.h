#pragma once

// A machine for the conformance suite, on any backend: one disk with a GUID partition table and two
// partitions. The first is an ESP with an unmounted volume labelled "EFI", the second is empty.

#include <QString>
#include <memory>

#include "Platform/Platform.h"

class ConformanceMachine {
 public:
  /// Each test executable defines its own. Null where no such machine is possible.
  static std::unique_ptr<ConformanceMachine> make();

  virtual ~ConformanceMachine() = default;

  virtual Platform &platform() = 0;
  /// The disk's BSD name.
  virtual QString disk() const = 0;

  // Actions of another program on the ESP and its disk.
  virtual void mount() = 0;
  virtual void unmount() = 0;
  virtual void rename(const QString &label) = 0;
  /// Keeps the mounted volume busy from now on.
  virtual void occupy() = 0;
  /// Removes the disk without an unmount.
  virtual void pull() = 0;
};
