#pragma once

// A volume that never answers: a file system whose server reads what it is asked and says nothing.

#include <fcntl.h>
#include <linux/fuse.h>
#include <poll.h>
#include <sys/mount.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <array>
#include <atomic>
#include <cerrno>
#include <thread>

class MuteVolume {
 public:
  /// Hides what is at `folder`. Not there where this user may not mount.
  explicit MuteVolume(const QString &folder) : _folder(folder.toUtf8()) {
    _device = open("/dev/fuse", O_RDWR | O_NONBLOCK | O_CLOEXEC);
    const QByteArray options =
        "rootmode=40000,user_id=0,group_id=0,fd=" + QByteArray::number(_device);
    _isThere =
        _device >= 0 && mount("mute", _folder.constData(), "fuse", 0, options.constData()) == 0;
    if (_isThere) _server = std::thread([this] { serve(); });
  }
  ~MuteVolume() {
    if (_isThere) umount2(_folder.constData(), MNT_DETACH);
    _isOver = true;
    if (_server.joinable()) _server.join();
    close(_device);  // whoever waits is told that the volume is gone
  }
  MuteVolume(const MuteVolume &) = delete;
  MuteVolume &operator=(const MuteVolume &) = delete;

  bool isThere() const { return _isThere; }
  int questions() const { return _questions; }

  /// From now on, also to what was asked before: there is no such file.
  void comeBack() { _isBack = true; }

 private:
  void serve() {
    alignas(fuse_in_header) std::array<char, 1 << 17> question{};
    const auto *head = reinterpret_cast<const fuse_in_header *>(question.data());
    QList<quint64> unanswered;
    while (!_isOver) {
      pollfd waiting{_device, POLLIN, 0};
      if (poll(&waiting, 1, 10) > 0 && read(_device, question.data(), question.size()) > 0) {
        if (head->opcode == FUSE_INIT) {
          fuse_init_out welcome{};
          welcome.major = 7;
          welcome.minor = 31;
          welcome.max_write = 4096;
          answer(head->unique, 0, welcome);
        } else {
          unanswered.append(head->unique);
          ++_questions;
        }
      }
      while (_isBack && !unanswered.isEmpty()) answer(unanswered.takeFirst(), -ENOENT, {});
    }
  }

  void answer(quint64 question, int error, const fuse_init_out &body) {
    struct {
      fuse_out_header head;
      fuse_init_out body;
    } message{{0, error, question}, body};
    message.head.len = error == 0 ? sizeof message : sizeof message.head;
    [[maybe_unused]] const auto written = write(_device, &message, message.head.len);
  }

  QByteArray _folder;
  int _device = -1;
  bool _isThere = false;
  std::atomic<bool> _isOver = false;
  std::atomic<bool> _isBack = false;
  std::atomic<int> _questions = 0;
  std::thread _server;
};
