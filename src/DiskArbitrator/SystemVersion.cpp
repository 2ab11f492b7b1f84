#include "DiskArbitrator/SystemVersion.h"

#include "DiskArbitrator/DiskArbitrator.h"
#include "Foundation/Text.h"

using namespace Qt::StringLiterals;

namespace {

QVariantMap versionDictionary(const SystemFiles &files) {
  for (const QString &path : {u"/System/Library/CoreServices/SystemVersion.plist"_s,
                              u"/System/Library/CoreServices/ServerVersion.plist"_s}) {
    if (files.exists(path)) return files.propertyList(path);
  }
  return {};
}

}  // namespace

qint32 minorVersion(const SystemFiles &files) {
  // The major number is ignored: "11.2" gives 2, and so counts as an old system.
  const QString version = versionDictionary(files).value(u"ProductVersion"_s).toString();
  return leadingInteger(version.split(u'.').value(1));
}

qint32 DiskArbitrator::findOSXMinorVersion() {
  return minorVersion(Platform::current().systemFiles());
}
