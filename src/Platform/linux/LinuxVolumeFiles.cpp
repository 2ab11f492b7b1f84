#include "Platform/linux/LinuxVolumeFiles.h"

#include <utility>

#include "Foundation/Paths.h"
#include "Platform/linux/LinuxDiskService.h"
#include "Platform/linux/VolumeQuestions.h"

namespace {

template <typename... Values>
QByteArray question(VolumeQuestion kind, const QString &path, const Values &...values) {
  return packed(static_cast<quint8>(kind), path, values...);
}

}  // namespace

LookAtPath LinuxVolumeFiles::look(const QString &path) {
  return lookFrom(_disks.askVolume(path, question(VolumeQuestion::Look, path)));
}

std::optional<QList<FolderEntry>> LinuxVolumeFiles::entries(const QString &folder) {
  return entriesFrom(_disks.askVolume(folder, question(VolumeQuestion::Entries, folder)));
}

void LinuxVolumeFiles::makeFolder(const QString &path, Parents parents) {
  _disks.askVolume(path, question(VolumeQuestion::MakeFolder, path, parents == Parents::Make));
}

std::optional<QImage> LinuxVolumeFiles::image(const QString &path) {
  const QByteArray asked = question(VolumeQuestion::Icon, path, _icons.known(path));
  return _icons.take(path, iconFileFrom(_disks.askVolume(path, asked)));
}

void LinuxVolumeFiles::findProcessesUsing(const QString &mountPoint,
                                          std::function<void(const QStringList &)> answer) {
  _disks.helpers().ask(
      {}, question(VolumeQuestion::Users, mountPoint),
      [call = std::move(answer)](const QByteArray &users) { call(usersFrom(users)); });
}
