#pragma once

// Programs of the operating system: a role of the seam (see Platform.h). On an old system they do
// what the disk service does on others.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

/// What became of a program.
struct ProgramRun {
  /// Why it could not be started, in the system's words; absent when it ran.
  std::optional<QString> problem;
  /// Not 0 either for a program that did not run or that a signal ended.
  int exitStatus = -1;
  /// What one read of the pipe gives that its standard output is: the first 64 KiB.
  QByteArray output;
};

class SystemPrograms {
 public:
  virtual ~SystemPrograms() = default;

  /// Runs the program at this path with exactly these arguments and nothing to read, and waits
  /// until it has ended. Blocks, for as long as that takes, and serves nothing meanwhile.
  virtual ProgramRun run(const QString &path, const QStringList &arguments) = 0;
};
