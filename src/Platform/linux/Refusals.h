#pragma once

#include <QString>

#include "Platform/Dissenter.h"

/// What an error of the disk service, or of the bus on the way to it, means as a dissenter's
/// status. `objectIsThere`: whether the service has the object that was asked, as far as is known;
/// it answers with the same error for an object that is gone and for one that cannot do what was
/// asked, and not always with words that tell them apart.
DissenterStatus refusalStatus(const QString &errorName, const QString &message, bool objectIsThere);
