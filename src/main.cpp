#include <QApplication>

#include "Platform/ThisMachine.h"
#include "application.h"

int main(int argc, char **argv) {
  prepareProcess(argv);
  if (!mayOpenEnoughFiles()) return EXIT_FAILURE;
  const auto application = makeApplication(argc, argv);
  configureApplication();
  const std::unique_ptr<Platform> platform = makePlatform();
  const std::unique_ptr<Desktop> desktop = makeDesktop(QStringLiteral("com.brinmoor.Keldra"));
  return runApplication(*platform, *desktop);
}
