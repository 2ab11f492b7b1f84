#include <QApplication>

#include "Platform/linux/LinuxPlatform.h"
#include "application.h"

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  const std::unique_ptr<Platform> platform = makeLinuxPlatform();
  return runApplication(*platform);
}
