// The same program on a machine that a file describes, with a window to change that machine:
// keldra-demo [MACHINE]

#include <QApplication>
#include <QTimer>
#include <cstdio>

#include "Demo/MachineWindow.h"
#include "Platform/ThisMachine.h"
#include "Platform/common/SystemClock.h"
#include "Platform/simulated/MachineFile.h"
#include "Platform/simulated/SimulatedPlatform.h"
#include "application.h"

namespace {

int refuse(const QString &reason) {
  std::fprintf(stderr, "keldra-demo: %s\n", reason.toLocal8Bit().constData());
  return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char **argv) {
  if (!mayOpenEnoughFiles()) return EXIT_FAILURE;
  const auto application = makeApplication(argc, argv);
  configureApplication();
  auto result = loadMachineFile(QApplication::arguments().value(1, QStringLiteral("laptop")));
  if (const auto *error = std::get_if<MachineFileError>(&result)) return refuse(error->text());

  SimulatedPlatform platform(std::get<Machine>(std::move(result)), std::make_unique<SystemClock>());
  MachineWindow window(platform);
  // Shown once the program has registered its name with the desktop.
  QTimer::singleShot(0, &window, &QWidget::show);
  const std::unique_ptr<Desktop> desktop = makeDesktop(QStringLiteral("com.brinmoor.Keldra.Demo"));
  return runApplication(platform, *desktop);
}
