#pragma once

// The disk arbitration service as the seam's disk service.

#include "Platform/Platform.h"
#include "Platform/macos/DiskArbitration.h"

class MacDiskService final : public DiskService {
 public:
  /// `root` is put before the paths of the system's programs.
  explicit MacDiskService(const QString &root) : _root(root) {}

  Presence presence() const override;
  QString name() const override;
  std::optional<DiskDescription> descriptionOfMedia(const QString &bsdName) const override;
  std::optional<DiskDescription> descriptionOfVolume(const QString &mountPoint) const override;
  void mount(const QString &bsdName, const std::optional<QString> &path,
             Completion completion) override;
  void unmount(const QString &bsdName, UnmountOption option, Completion completion) override;

  /// Completes pending requests: the service that had them is gone.
  void noteServiceStart() { _arbitration.answerAll(disk_service::kDAReturnNotReady); }

 private:
  DissenterStatus inWordsOfTheSeam(const QString &bsdName, quint32 status) const;

  QString _root;
  DiskArbitration _arbitration;
  QObject _prompts;  // owns the password prompts
};
