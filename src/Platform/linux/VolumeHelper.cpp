#include "Platform/linux/VolumeHelper.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <string>
#include <vector>

#include "Platform/linux/VolumeHelperRole.h"
#include "Platform/linux/VolumeQuestions.h"

namespace {

std::vector<char *> environmentWith(char *variable) {
  std::vector<char *> variables;
  for (char **each = environ; *each != nullptr; ++each) variables.push_back(*each);
  variables.push_back(variable);
  variables.push_back(nullptr);
  return variables;
}

/// 0 when the process cannot be started. It inherits only the socket, and no ignored signals.
pid_t start(int socket) {
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_adddup2(&files, socket, kHelperSocket);
  for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    posix_spawn_file_actions_addopen(&files, standard, "/dev/null", O_RDWR, 0);
  }
  posix_spawn_file_actions_addclosefrom_np(&files, kHelperSocket + 1);

  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  sigset_t all;
  sigset_t none;
  sigfillset(&all);
  sigemptyset(&none);
  posix_spawnattr_setsigdefault(&attributes, &all);
  posix_spawnattr_setsigmask(&attributes, &none);
  posix_spawnattr_setflags(&attributes,
                           POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSID);

  std::string name = "keldra-volumes";
  std::string role = std::string(kHelperVariable) + "=1";
  std::array<char *, 2> arguments = {name.data(), nullptr};
  pid_t process = 0;
  const int error = posix_spawn(&process, "/proc/self/exe", &files, &attributes, arguments.data(),
                                environmentWith(role.data()).data());
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&files);
  return error == 0 ? process : 0;
}

/// Reaps the process when it exits, however late. Null where the kernel cannot report the exit.
QSocketNotifier *watchedForEnd(pid_t process) {
  // In Debian 12 the C library declares pidfd_open for C only.
  const int descriptor = static_cast<int>(syscall(SYS_pidfd_open, process, 0));
  if (descriptor < 0) return nullptr;
  auto *end = new QSocketNotifier(descriptor, QSocketNotifier::Read, QCoreApplication::instance());
  QObject::connect(end, &QSocketNotifier::activated, end, [end, descriptor] {
    siginfo_t state{};
    waitid(P_PIDFD, static_cast<id_t>(descriptor), &state, WEXITED | WNOHANG);
    end->setEnabled(false);
    end->deleteLater();
    close(descriptor);
  });
  return end;
}

/// Deleted later, because the notifier may be emitting its signal.
void retire(std::unique_ptr<QSocketNotifier> &notifier) {
  if (notifier == nullptr) return;
  notifier->setEnabled(false);
  notifier.release()->deleteLater();
}

}  // namespace

VolumeHelper::VolumeHelper() {
  std::array<int, 2> sockets{};
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets.data()) != 0) return;
  const pid_t process = start(sockets[1]);
  close(sockets[1]);
  if (process == 0) {
    close(sockets[0]);
    return;
  }
  _socket = sockets[0];
  fcntl(_socket, F_SETFL, O_NONBLOCK);
  _process = watchedForEnd(process);
  _answers = std::make_unique<QSocketNotifier>(_socket, QSocketNotifier::Read);
  QObject::connect(_answers.get(), &QSocketNotifier::activated, _answers.get(),
                   [this] { takeAnswers(); });
}

VolumeHelper::~VolumeHelper() {
  _handlers.clear();
  end();
}

void VolumeHelper::ask(const QByteArray &question, Handler handler) {
  _handlers.push_back(std::move(handler));
  const QByteArray message = framed(question);
  // Questions are short, and few are pending: if one does not fit at once, the process hangs.
  const auto size = static_cast<size_t>(message.size());
  if (send(_socket, message.constData(), size, MSG_NOSIGNAL) != message.size()) end();
}

void VolumeHelper::serve(std::chrono::milliseconds atMost) {
  const auto deadline = std::chrono::steady_clock::now() + atMost;
  while (!isIdle() && !hasEnded()) {
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    if (left.count() <= 0) return;
    pollfd waiting{_socket, POLLIN, 0};
    if (poll(&waiting, 1, static_cast<int>(left.count())) > 0) takeAnswers();
  }
}

void VolumeHelper::takeAnswers() {
  std::array<char, 65536> piece{};
  ssize_t size = 0;
  while ((size = recv(_socket, piece.data(), piece.size(), 0)) > 0)
    _received.append(piece.data(), size);
  const bool isOver = size == 0 || (errno != EAGAIN && errno != EINTR);
  bool isBroken = false;
  while (const auto answer = takeMessage(_received, isBroken)) {
    if (_handlers.empty()) break;
    const Handler handler = std::move(_handlers.front());
    _handlers.pop_front();
    handler(*answer);
  }
  if (isOver || isBroken) end();
}

void VolumeHelper::end() {
  retire(_answers);
  if (_process != nullptr && _process->isEnabled()) {
    syscall(SYS_pidfd_send_signal, _process->socket(), SIGKILL, nullptr, 0);
  }
  if (_socket >= 0) close(_socket);
  _socket = -1;
  while (!_handlers.empty()) {
    const Handler handler = std::move(_handlers.front());
    _handlers.pop_front();
    handler({});
  }
}
