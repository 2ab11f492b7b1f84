#pragma once

#include "Platform/Platform.h"

/// The I/O registry's media objects, in the registry's order.
class MacMediaRegistry final : public MediaRegistry {
 public:
  QStringList mediaNames() const override;
  QStringList mediaNamesOnDisk(const QString &wholeDisk) const override;
};
