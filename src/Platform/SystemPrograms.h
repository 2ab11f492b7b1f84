#pragma once

// Programs of the operating system: a role of the seam (see Platform.h). On an old system they
// replace the disk service.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

/// The result of running a program.
struct ProgramRun {
  /// Why the program could not be started, in the system's words; absent when it ran.
  std::optional<QString> problem;
  /// Also not 0 for a program that did not run or that a signal ended.
  int exitStatus = -1;
  /// The first 64 KiB of the standard output, which one read of the pipe returns.
  QByteArray output;
};

class SystemPrograms {
 public:
  virtual ~SystemPrograms() = default;

  /// Runs the program at this path with exactly these arguments and an empty standard input, and
  /// waits until it exits. Blocks for that time without serving the event loop.
  virtual ProgramRun run(const QString &path, const QStringList &arguments) = 0;
};
