#pragma once

#include <QObject>
#include <functional>

#include "Platform/Platform.h"

/// Whether an administrator may mount what this user was refused: the EFI System Partitions, which
/// the service mounts for root and the disk's owner only.
bool mayAskAdministrator(const DiskDescription &description, DissenterStatus refusal);

/// Has the system's own prompt ask for an administrator's password, and its own tool mount the
/// partition. Returns at once; completed from the event loop, unless `owner` goes before: without a
/// dissenter when it is mounted, with ECANCELED when the person has dismissed the prompt, else with
/// the refusal that there was before. `root` is put before the prompt's path.
void mountAsAdministrator(const QString &bsdName, DissenterStatus refusal, const QString &root,
                          QObject &owner, DiskService::Completion completion);
