// The disks of the machine, and what happens to them.

#include <QDir>

#include "macos/fake/World.h"

using namespace fake;

namespace {

const QString kPath = QStringLiteral("DAVolumePath");
const QString kName = QStringLiteral("DAVolumeName");

}  // namespace

DiskEntry *fake::entryOf(const QString &name) {
  for (DiskEntry &each : world().disks) {
    if (each.name == name) return &each;
  }
  return nullptr;
}

void Machine::plug(const QString &name, QVariantMap description) {
  const bool hasMedia = !name.startsWith('/');
  description.insert(hasMedia ? "DAMediaBSDName" : kPath,
                     hasMedia ? QVariant(name) : QUrl::fromLocalFile(name));
  world().disks.push_back({name, description});
  announce({"appeared"}, world().disks.back());
}

void Machine::pull(const QString &name) {
  announce({"disappeared"}, *entryOf(name));
  std::erase_if(world().disks, [&name](const DiskEntry &each) { return each.name == name; });
}

void Machine::mount(const QString &name, const QString &path) {
  QDir().mkdir(path);
  entryOf(name)->description[kPath] = QUrl::fromLocalFile(path);
  announce({kPath}, *entryOf(name));
}

void Machine::unmount(const QString &name) {
  entryOf(name)->description.remove(kPath);
  announce({kPath}, *entryOf(name));
}

void Machine::rename(const QString &name, const QString &volumeName, const QString &path) {
  DiskEntry &entry = *entryOf(name);
  entry.description[kName] = volumeName;
  if (!path.isEmpty()) entry.description[kPath] = QUrl::fromLocalFile(path);
  announce({kName, path.isEmpty() ? QString() : kPath}, entry);
}

QString Machine::mountPoint(const QString &name) const {
  return entryOf(name)->description.value(kPath).toUrl().toLocalFile();
}
