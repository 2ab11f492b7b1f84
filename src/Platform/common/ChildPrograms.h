#pragma once

#include "Platform/SystemPrograms.h"

/// This machine's own programs, as child processes. What they write as errors goes where ours go.
class ChildPrograms final : public SystemPrograms {
 public:
  ProgramRun run(const QString &path, const QStringList &arguments) override;
};
