#include <QApplication>

#include "Platform/ThisMachine.h"
#include "application.h"

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  configureApplication();
  const std::unique_ptr<Platform> platform = makePlatform();
  const std::unique_ptr<Desktop> desktop = makeDesktop(QStringLiteral("com.brinmoor.Keldra"));
  return runApplication(*platform, *desktop);
}
