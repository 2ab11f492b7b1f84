#pragma once

// A machine as the conformance suite needs it, on any backend: one disk with a GUID partition table
// and two partitions. The first is an ESP with an unmounted volume labelled "EFI", the second is
// empty.

#include <QString>
#include <memory>

#include "Platform/Platform.h"

class ConformanceMachine {
 public:
  /// Each executable has its own. Null where there can be none.
  static std::unique_ptr<ConformanceMachine> make();

  virtual ~ConformanceMachine() = default;

  virtual Platform &platform() = 0;
  /// The disk's BSD name.
  virtual QString disk() const = 0;

  // What somebody else does, to the ESP and its disk.
  virtual void mount() = 0;
  virtual void unmount() = 0;
  virtual void rename(const QString &label) = 0;
  /// Keeps the mounted volume busy from now on.
  virtual void occupy() = 0;
  /// As a hand would pull it, mounted or not.
  virtual void pull() = 0;
};
