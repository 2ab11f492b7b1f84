#include "Platform/linux/Requests.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QTimer>
#include <algorithm>
#include <cerrno>
#include <utility>

#include "Foundation/Error.h"
#include "Foundation/SystemLog.h"
#include "Platform/linux/MessageBus.h"
#include "Platform/linux/Refusals.h"
#include "Platform/linux/ServiceTree.h"
#include "Platform/linux/VolumeHelpers.h"
#include "Platform/linux/VolumeQuestions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds kFlushTime(5);

const QString kMount = u"Mount"_s;
const QString kUnmount = u"Unmount"_s;

}  // namespace

void Requests::mount(const Medium &medium, DiskService::Completion completion) {
  send(enter(medium, kMount, {}, std::move(completion)));
}

void Requests::unmount(const Medium &medium, DiskService::Completion completion) {
  send(enter(medium, kUnmount, {}, std::move(completion)));
}

// The service's forced unmount is lazy: it returns before the data are written. So flush first.
void Requests::forceUnmount(const Medium &medium, const Mount &mount,
                            DiskService::Completion completion) {
  const Number number = enter(medium, kUnmount, {{u"force"_s, true}}, std::move(completion));
  const QByteArray flush =
      packed(static_cast<quint8>(VolumeQuestion::Flush), mount.mountPoint, mount.device);
  _helpers.ask(mount, flush, [this, number, mount](const QByteArray &answer) {
    int error = EIO;
    unpack(answer, error);
    if (error == 0) return send(number);
    sendUnwritten(number, mount, posixError(error).localizedDescription);
  });
  QTimer::singleShot(kFlushTime, this, [=, this] { sendUnwritten(number, mount, u"no answer"_s); });
}

void Requests::setUnwrittenHandler(std::function<void(const QString &)> handler) {
  _unwritten = std::move(handler);
}

// Still sent, because an unresponsive disk is the main reason for a forced unmount.
void Requests::sendUnwritten(Number number, const Mount &mount, const QString &reason) {
  const auto request = _pending.constFind(number);
  if (request == _pending.constEnd() || request->isSent) return;
  systemLog(u"%1 was not flushed: %2"_s.arg(mount.mountPoint, reason));
  if (_unwritten) _unwritten(mount.mountPoint);
  send(number);
}

Requests::Number Requests::enter(const Medium &medium, const QString &method,
                                 const QVariantMap &options, DiskService::Completion completion) {
  const Number number = ++_last;
  _pending.insert(
      number, {medium.bsdName(), medium.objectPath, method, options, std::move(completion), false});
  return number;
}

void Requests::send(Number number) {
  const auto request = _pending.find(number);
  if (request == _pending.end() || std::exchange(request->isSent, true)) return;
  auto call = QDBusMessage::createMethodCall(_tree.owner(), request->objectPath,
                                             kFilesystemInterface, request->method);
  call.setArguments({request->options});
  call.setInteractiveAuthorizationAllowed(true);
  auto *watcher =
      new QDBusPendingCallWatcher(_tree.connection().asyncCall(call, MessageBus::kNoTimeOut), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, number, watcher] {
    watcher->deleteLater();
    takeAnswer(number, watcher->reply());
  });
}

void Requests::takeAnswer(Number number, const QDBusMessage &answer) {
  const auto request = _pending.constFind(number);
  if (request == _pending.constEnd()) return;
  if (answer.type() != QDBusMessage::ErrorMessage) return complete(number, std::nullopt);
  systemLog(u"%1 of %2 refused: %3: %4"_s.arg(request->method, request->bsdName, answer.errorName(),
                                              answer.errorMessage()));
  const bool isThere = _tree.objects().contains(request->objectPath);
  complete(number, Dissenter{refusalStatus(answer.errorName(), answer.errorMessage(), isThere)});
}

void Requests::failAll() {
  const auto numbers = _pending.keys();
  for (const Number number : numbers) complete(number, Dissenter{kDAReturnNotReady});
}

bool Requests::isWaitingFor(const QString &objectPath) const {
  return std::ranges::any_of(
      _pending, [&](const Request &request) { return request.objectPath == objectPath; });
}

void Requests::failVanished(const QString &objectPath, bool isPulled, bool isMounted) {
  const auto numbers = _pending.keys();
  for (const Number number : numbers) {
    const auto request = _pending.constFind(number);
    if (request == _pending.constEnd() || request->objectPath != objectPath) continue;
    const bool isMount = request->method == kMount;
    if (isMount && !isPulled) continue;
    const bool isDone = !isMount && !isMounted;
    complete(number, isDone ? std::nullopt : std::optional(Dissenter{kDAReturnNotFound}));
  }
}

// Removed first: a completion may make new requests, or run the event loop.
void Requests::complete(Number number, const std::optional<Dissenter> &dissenter) {
  const Request request = _pending.take(number);
  if (request.completion) request.completion(dissenter);
}
