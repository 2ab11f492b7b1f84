#pragma once

#include "Platform/SystemPrograms.h"

/// This machine's own programs, as child processes. They inherit the standard error.
class ChildPrograms final : public SystemPrograms {
 public:
  ProgramRun run(const QString &path, const QStringList &arguments) override;
};
