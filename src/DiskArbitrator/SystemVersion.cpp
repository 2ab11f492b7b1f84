#include "DiskArbitrator/DiskArbitrator.h"
#include "Foundation/Text.h"

using namespace Qt::StringLiterals;

namespace {

QVariantMap versionDictionary() {
  const SystemFiles &files = Platform::current().systemFiles();
  for (const QString &path : {u"/System/Library/CoreServices/SystemVersion.plist"_s,
                              u"/System/Library/CoreServices/ServerVersion.plist"_s}) {
    if (files.exists(path)) return files.propertyList(path);
  }
  return {};
}

}  // namespace

qint32 DiskArbitrator::findOSXMinorVersion() {
  // The major number is never looked at: "11.2" reads as 2, and so as an old system.
  const QString version = versionDictionary().value(u"ProductVersion"_s).toString();
  return leadingInteger(version.split(u'.').value(1));
}
