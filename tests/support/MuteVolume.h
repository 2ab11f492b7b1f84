#pragma once

// A volume that never answers: a FUSE file system whose server reads requests without answering.

#include <fcntl.h>
#include <linux/fuse.h>
#include <sys/mount.h>
#include <unistd.h>

#include <QString>
#include <array>

class MuteVolume {
 public:
  /// Mounts over `folder`. Fails, see `isThere`, where this user may not mount.
  explicit MuteVolume(const QString &folder) : _folder(folder.toUtf8()) {
    const QByteArray options =
        "rootmode=40000,user_id=0,group_id=0,fd=" + QByteArray::number(_device);
    _isThere = mount("mute", _folder.constData(), "fuse", 0, options.constData()) == 0;
    fuse_in_header question{};
    if (!_isThere || !takeQuestion(question)) return;
    struct {
      fuse_out_header head;
      fuse_init_out body;
    } welcome{{sizeof welcome, 0, question.unique}, {}};
    welcome.body.major = 7;
    welcome.body.minor = 31;
    _isThere = write(_device, &welcome, sizeof welcome) > 0;
  }
  ~MuteVolume() {
    if (_isThere) umount2(_folder.constData(), MNT_DETACH);
    fail();
  }
  MuteVolume(const MuteVolume &) = delete;
  MuteVolume &operator=(const MuteVolume &) = delete;

  bool isThere() const { return _isThere; }

  /// The number of requests until now. A process that waits for one of them cannot even be killed.
  int questions() {
    fuse_in_header question{};
    while (takeQuestion(question)) ++_questions;
    return _questions;
  }

  /// Answers all requests, past and future, with an error.
  void fail() {
    close(_device);
    _device = -1;
  }

 private:
  bool takeQuestion(fuse_in_header &head) const {
    alignas(fuse_in_header) std::array<char, 1 << 17> question;
    if (read(_device, question.data(), question.size()) <= 0) return false;
    head = *reinterpret_cast<const fuse_in_header *>(question.data());
    return true;
  }

  QByteArray _folder;
  int _device = open("/dev/fuse", O_RDWR | O_NONBLOCK | O_CLOEXEC);
  bool _isThere = false;
  int _questions = 0;
};
