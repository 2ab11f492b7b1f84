#include "Platform/linux/VolumeHelperRole.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <QCoreApplication>
#include <array>
#include <cstdlib>
#include <span>
#include <string>

#include "Platform/linux/VolumeHelper.h"
#include "Platform/linux/VolumeQuestions.h"

namespace {

/// The most processor time for an answer, in seconds; SIGPROF then ends the process.
constexpr time_t kMostEffort = 10;

void limitEffort(time_t seconds) {
  const itimerval limit{{0, 0}, {seconds, 0}};
  setitimer(ITIMER_PROF, &limit, nullptr);
}

/// If the content of a volume uses up the memory, the kernel should kill this process first.
void offerToBeEnded() {
  const int file = open("/proc/self/oom_score_adj", O_WRONLY | O_CLOEXEC);
  [[maybe_unused]] const auto written = write(file, "1000", 4);
  close(file);
}

bool sendWhole(std::span<const char> bytes) {
  while (!bytes.empty()) {
    const ssize_t size = send(kHelperSocket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (size <= 0) return false;
    bytes = bytes.subspan(static_cast<size_t>(size));
  }
  return true;
}

/// Returns when the socket is closed.
void answerQuestions() {
  QByteArray received;
  std::array<char, 65536> piece{};
  bool isBroken = false;
  for (ssize_t size = 1; size > 0 && !isBroken;) {
    size = recv(kHelperSocket, piece.data(), piece.size(), 0);
    if (size > 0) received.append(piece.data(), size);
    while (const auto question = takeMessage(received, isBroken)) {
      limitEffort(kMostEffort);
      const QByteArray answer = answerTo(*question);
      limitEffort(0);
      if (!sendWhole(framed(answer))) return;
    }
  }
}

bool isSocket(int descriptor) {
  int type = 0;
  socklen_t size = sizeof type;
  return getsockopt(descriptor, SOL_SOCKET, SO_TYPE, &type, &size) == 0;
}

}  // namespace

std::optional<int> runAsVolumeHelper() {
  if (getenv(kHelperVariable) == nullptr) return std::nullopt;
  unsetenv(kHelperVariable);
  // The user may have set the variable by hand.
  if (!isSocket(kHelperSocket)) return std::nullopt;
  prctl(PR_SET_NAME, "keldra-volumes");
  // The working directory may lie on a volume that is to be unmounted.
  if (chdir("/") != 0) return EXIT_FAILURE;
  offerToBeEnded();
  int argumentCount = 1;
  std::string name = "keldra-volumes";
  std::array<char *, 2> arguments = {name.data(), nullptr};
  const QCoreApplication application(argumentCount, arguments.data());
  answerQuestions();
  return EXIT_SUCCESS;
}
