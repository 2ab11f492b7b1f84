#pragma once

#include <QObject>
#include <functional>

#include "Platform/Platform.h"

/// Whether to ask for an administrator after this refusal: for EFI System Partitions, which the
/// service mounts only for root and the disk's owner.
bool mayAskAdministrator(const DiskDescription &description, DissenterStatus refusal);

/// Shows the system's own prompt for an administrator's password, and then mounts the partition
/// with the system's own tool. Returns at once. `completion` is called from the event loop, unless
/// `owner` is destroyed before: without a dissenter on success, with ECANCELED when the user has
/// dismissed the prompt, else with the earlier refusal. `root` is put before the prompt's path.
void mountAsAdministrator(const QString &bsdName, DissenterStatus refusal, const QString &root,
                          QObject &owner, DiskService::Completion completion);
