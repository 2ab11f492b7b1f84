#include <QDesktopServices>
#include <QSysInfo>
#include <QUrl>

#include "AppDelegate/AppDelegate.h"
#include "Interface/InfoWindow.h"
#include "Interface/TextField.h"
#include "Platform/Platform.h"

using namespace Qt::StringLiterals;

namespace {

const QString kWebAddress = u"https://keldra.example/"_s;

QString presenceInWords(DiskService::Presence presence) {
  switch (presence) {
    case DiskService::Presence::Asking:
      return AppDelegate::tr("no answer yet");
    case DiskService::Presence::Answering:
      return AppDelegate::tr("answers");
    case DiskService::Presence::Absent:
      return AppDelegate::tr("not there");
  }
  return {};
}

}  // namespace

void AppDelegate::showInfo() {
  const DiskService &disks = _platform.diskService();
  Facts facts = {
      {tr("Version"), _versionLabel->stringValue()},
      {tr("Licence"), u"MIT"_s},
      {tr("Web site"), kWebAddress},
      {tr("Stands on"), u"Qt %1, libplist, OpenJPEG"_s.arg(QLatin1StringView(qVersion()))},
      {tr("System"), u"%1, %2 %3"_s.arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(),
                                        QSysInfo::kernelVersion())},
      {tr("Disk service"), u"%1, %2"_s.arg(disks.name(), presenceInWords(disks.presence()))},
  };
  _infoWindow->setFacts(facts + _desktop.facts());
  _infoWindow->makeKeyAndOrderFront();
  _infoWindow->center();
  _popover->close();  // it would cover the window
}

void AppDelegate::visitWebSite() {
  QDesktopServices::openUrl(QUrl(kWebAddress));
}
