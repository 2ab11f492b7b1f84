// The machine's disks, and changes to them.

#include "macos/fake/World.h"

using namespace fake;

constexpr char kPath[] = "DAVolumePath";
constexpr char kName[] = "DAVolumeName";

void Machine::plug(const QString &name, QVariantMap description) {
  const bool hasMedia = !name.startsWith('/');
  description.insert(hasMedia ? "DAMediaBSDName" : kPath,
                     hasMedia ? QVariant(name) : QUrl::fromLocalFile(name));
  world().disks.insert(name, description);
  announce({"appeared"}, name);
}

void Machine::pull(const QString &name) {
  announce({"disappeared"}, name);
  world().disks.remove(name);
}

void Machine::mount(const QString &name, const QString &path) {
  world().disks[name][kPath] = QUrl::fromLocalFile(path);
  announce({kPath}, name);
}

void Machine::unmount(const QString &name) {
  world().disks[name].remove(kPath);
  announce({kPath}, name);
}

void Machine::rename(const QString &name, const QString &volumeName) {
  const bool isMounted = !mountPoint(name).isEmpty();
  world().disks[name][kName] = volumeName;
  if (isMounted) world().disks[name][kPath] = QUrl::fromLocalFile("/Volumes/" + volumeName);
  announce({kName, isMounted ? kPath : ""}, name);
}

QString Machine::mountPoint(const QString &name) const {
  return _world->disks.value(name).value(kPath).toUrl().toLocalFile();
}
