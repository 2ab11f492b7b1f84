// The program's bundle, its executable, and the bundles of drivers.

#include <IOKit/kext/KextManager.h>
#include <mach-o/dyld.h>

#include <QDir>

#include "macos/fake/World.h"

using namespace fake;

namespace {

CFURLRef urlOf(const QString &path) {
  return path.isEmpty() ? nullptr : as<CFURLRef>(objectOf(QUrl::fromLocalFile(path)));
}

}  // namespace

CFURLRef KextManagerCreateURLForBundleIdentifier(CFAllocatorRef, CFStringRef identifier) {
  return urlOf(Machine::current().driverBundles.value(textOf(identifier)).toString());
}

CFBundleRef CFBundleGetMainBundle() {
  static Object *const bundle = makeConstant("CFBundle");
  return as<CFBundleRef>(bundle);
}

CFURLRef CFBundleCopyBundleURL(CFBundleRef) {
  return urlOf("/Applications/Keldra.app");
}

CFBundleRef CFBundleCreate(CFAllocatorRef, CFURLRef url) {
  const QString path = pathOf(url);
  return QDir(path).exists() ? as<CFBundleRef>(new Object("CFBundle", path)) : nullptr;
}

CFURLRef CFBundleCopyResourceURL(CFBundleRef bundle, CFStringRef name, CFStringRef type,
                                 CFStringRef) {
  const QDir folder(valueOf(bundle, "CFBundle").toString() + "/Contents/Resources");
  const QString base = textOf(name).isEmpty() ? "*" : textOf(name);
  const QStringList found = folder.entryList({base + '.' + textOf(type)}, QDir::Files);
  return found.isEmpty() ? nullptr : urlOf(folder.filePath(found.first()));
}

int _NSGetExecutablePath(char *buffer, std::uint32_t *size) {
  const std::string &path = Machine::current().executable;
  buffer[path.copy(buffer, *size - 1)] = 0;
  return 0;
}
