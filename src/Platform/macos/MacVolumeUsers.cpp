#include "Platform/macos/MacVolumeUsers.h"

#include <libproc.h>

#include <QFile>
#include <array>
#include <vector>

namespace {

// More than a message can show.
constexpr std::size_t kMostProcesses = 256;

QString nameOf(int process) {
  std::array<char, 256> name{};
  const int length = proc_name(process, name.data(), static_cast<quint32>(name.size()));
  return length > 0 ? QString::fromUtf8(name.data(), length) : QStringLiteral("?");
}

}  // namespace

QStringList programsUsingVolume(const QString &mountPoint) {
  // A process that only watches the volume for changes does not prevent an unmount.
  constexpr auto kHolders = PROC_LISTPIDSPATH_PATH_IS_VOLUME | PROC_LISTPIDSPATH_EXCLUDE_EVTONLY;
  std::vector<int> processes(kMostProcesses);
  const int bytes =
      proc_listpidspath(PROC_ALL_PIDS, 0, QFile::encodeName(mountPoint).constData(), kHolders,
                        processes.data(), static_cast<int>(processes.size() * sizeof(int)));
  processes.resize(bytes > 0 ? static_cast<std::size_t>(bytes) / sizeof(int) : 0);
  QStringList users;
  for (const int process : processes) {
    users += QStringLiteral("%1 (%2)").arg(nameOf(process)).arg(process);
  }
  return users;
}
