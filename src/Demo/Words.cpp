#include "Demo/Words.h"

#include <QCoreApplication>
#include <cerrno>

#include "DiskArbitrator/daStatus.h"

namespace {

struct Words {
  Q_DECLARE_TR_FUNCTIONS(Words)
};

}  // namespace

const QVector<std::optional<DissenterStatus>> &refusals() {
  static const auto all = [] {
    QVector<std::optional<DissenterStatus>> values = {std::nullopt};
    for (DissenterStatus status = kDAReturnError; status <= kDAReturnUnsupported; ++status) {
      values += status;
    }
    // What services say of dismissed password prompts and of disks that are full or failing.
    for (const int number : {ECANCELED, EACCES, ENOSPC, EIO, EROFS}) {
      values += unixErrorStatus(number);
    }
    return values;
  }();
  return all;
}

QString phrase(const std::optional<DissenterStatus> &refusal) {
  return refusal ? QString::fromLocal8Bit(daStatus(*refusal)) : Words::tr("as asked");
}

const QVector<std::optional<Mishap>> &mishaps() {
  using enum Mishap;
  static const QVector<std::optional<Mishap>> all = {
      std::nullopt, DiskVanishesBefore, DiskVanishesDuring, DiskVanishesAfter, ServiceDies};
  return all;
}

QString phrase(const std::optional<Mishap> &mishap) {
  if (!mishap) return Words::tr("none");
  switch (*mishap) {
    case Mishap::DiskVanishesBefore:
      return Words::tr("disk vanishes before");
    case Mishap::DiskVanishesDuring:
      return Words::tr("disk vanishes during");
    case Mishap::DiskVanishesAfter:
      return Words::tr("disk vanishes after");
    case Mishap::ServiceDies:
      break;
  }
  return Words::tr("service dies");
}
