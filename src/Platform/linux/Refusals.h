#pragma once

#include <QString>

#include "Platform/Dissenter.h"

/// A dissenter's status for an error of the disk service, or of the bus on the way to it.
/// `objectIsThere`: whether the service is known to have the object of the request. The service
/// gives the same error for an object that is gone and for one that cannot do the request, not
/// always with distinct messages.
DissenterStatus refusalStatus(const QString &errorName, const QString &message, bool objectIsThere);
