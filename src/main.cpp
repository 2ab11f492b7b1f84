#include <QApplication>

#include "Platform/linux/LinuxPlatform.h"
#include "Platform/linux/desktop/LinuxDesktop.h"
#include "application.h"

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  const std::unique_ptr<Platform> platform = makeLinuxPlatform();
  const std::unique_ptr<Desktop> desktop = makeLinuxDesktop(QStringLiteral("com.brinmoor.Keldra"));
  return runApplication(*platform, *desktop);
}
