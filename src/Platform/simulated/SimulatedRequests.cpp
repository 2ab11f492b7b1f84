// How the simulated service handles requests.

#include <QTimer>
#include <utility>

#include "Platform/simulated/SimulatedPlatform.h"

void SimulatedPlatform::mount(const QString &bsdName, const std::optional<QString> &path,
                              Completion completion) {
  take({[this, bsdName, path] { return tryToMount(bsdName, path); }, std::move(completion),
        bsdName});
}

void SimulatedPlatform::unmount(const QString &bsdName, UnmountOption option,
                                Completion completion) {
  take({[this, bsdName, option] { return tryToUnmount(bsdName, option); }, std::move(completion),
        bsdName});
}

std::optional<Dissenter> SimulatedPlatform::tryToMount(const QString &bsdName,
                                                       const std::optional<QString> &path) {
  if (_machine.presence != Presence::Answering) return Dissenter{kDAReturnNotReady};
  const auto [disk, partition] = find(bsdName);
  if (disk == nullptr) return Dissenter{kDAReturnNotFound};
  if (partition == nullptr || partition->volumeKind.isEmpty())
    return Dissenter{kDAReturnUnsupported};
  if (partition->mountRefusal.has_value()) return Dissenter{*partition->mountRefusal};
  if (partition->mountPoint.has_value()) return Dissenter{kDAReturnBusy};
  putAt(*partition, path.value_or(freeFolder(*partition)));
  const QString mountPoint = *partition->mountPoint;
  _workspace.post({kNSWorkspaceDidMountNotification, this, {{kNSDevicePathKey, mountPoint}}});
  return std::nullopt;
}

std::optional<Dissenter> SimulatedPlatform::tryToUnmount(const QString &bsdName,
                                                         UnmountOption option) {
  if (_machine.presence != Presence::Answering) return Dissenter{kDAReturnNotReady};
  const auto [disk, partition] = find(bsdName);
  if (disk == nullptr) return Dissenter{kDAReturnNotFound};
  if (partition == nullptr || !partition->mountPoint.has_value())
    return Dissenter{kDAReturnNotMounted};
  // Force is for volumes in use; it does not override other refusals.
  const bool isOverruled =
      option == UnmountOption::Force && partition->unmountRefusal == kDAReturnBusy;
  if (partition->unmountRefusal.has_value() && !isOverruled) {
    return Dissenter{*partition->unmountRefusal};
  }
  const QString mountPoint = *partition->mountPoint;
  takeAway(*partition);
  _workspace.post({kNSWorkspaceDidUnmountNotification, this, {{kNSDevicePathKey, mountPoint}}});
  return std::nullopt;
}

void SimulatedPlatform::take(Request request) {
  std::chrono::milliseconds delay{0};
  const auto [disk, partition] = find(request.bsdName);
  if (partition != nullptr && _machine.presence == Presence::Answering) {
    delay = partition->delay;
    request.mishap = std::exchange(partition->mishap, std::nullopt);
    if (request.mishap.has_value()) strike(*request.mishap, disk->unit, delay);
  }
  const int number = ++_lastRequest;
  _requests.insert({number, std::move(request)});
  // Queued after pending announcements, however late the timer fires.
  QTimer::singleShot(delay, &_context,
                     [this, number] { later([this, number] { answer(number); }); });
}

void SimulatedPlatform::strike(Mishap mishap, int unit, std::chrono::milliseconds delay) {
  switch (mishap) {
    case Mishap::DiskVanishesBefore:
      pull(unit);
      return;
    case Mishap::DiskVanishesDuring:
      QTimer::singleShot(delay / 2, &_context, [this, unit] { pull(unit); });
      return;
    case Mishap::ServiceDies:
      QTimer::singleShot(delay / 2, &_context, [this] { setPresence(Presence::Absent); });
      return;
    case Mishap::DiskVanishesAfter:  // happens after the answer
      return;
  }
}

void SimulatedPlatform::answer(int number) {
  auto node = _requests.extract(number);
  if (node.empty()) return;
  const Request request = std::move(node.mapped());
  const std::optional<Dissenter> dissenter = request.attempt();
  if (request.mishap == Mishap::DiskVanishesAfter) {
    // In a later turn, so that the caller sees the answer's result first.
    later([this, bsdName = request.bsdName] {
      if (const SimulatedDisk *disk = find(bsdName).disk) pull(disk->unit);
    });
  }
  request.completion(dissenter);
}

void SimulatedPlatform::endRequests(DissenterStatus status,
                                    const std::function<bool(const Request &)> &concerns) {
  for (auto each = _requests.begin(); each != _requests.end();) {
    if (!concerns(each->second)) {
      ++each;
      continue;
    }
    later([completion = std::move(each->second.completion), status] {
      completion(Dissenter{status});
    });
    each = _requests.erase(each);
  }
}
