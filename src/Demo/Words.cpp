#include "Demo/Words.h"

#include <QCoreApplication>
#include <cerrno>

#include "DiskArbitrator/daStatus.h"

namespace {

struct Words {
  Q_DECLARE_TR_FUNCTIONS(Words)
};

Choices<DissenterStatus> makeRefusals() {
  Choices<DissenterStatus> all = {{std::nullopt, Words::tr("as asked")}};
  const auto add = [&all](DissenterStatus status) {
    all.append({status, QString::fromLocal8Bit(daStatus(status))});
  };
  for (DissenterStatus status = kDAReturnError; status <= kDAReturnUnsupported; ++status) {
    add(status);
  }
  // What services answer for dismissed password prompts and for full or failing disks.
  for (const int number : {ECANCELED, EACCES, ENOSPC, EIO, EROFS}) add(unixErrorStatus(number));
  return all;
}

}  // namespace

const Choices<DissenterStatus> &refusals() {
  static const Choices<DissenterStatus> all = makeRefusals();
  return all;
}

const Choices<Mishap> &mishaps() {
  static const Choices<Mishap> all = {
      {std::nullopt, Words::tr("none")},
      {Mishap::DiskVanishesBefore, Words::tr("disk vanishes before")},
      {Mishap::DiskVanishesDuring, Words::tr("disk vanishes during")},
      {Mishap::DiskVanishesAfter, Words::tr("disk vanishes after")},
      {Mishap::ServiceDies, Words::tr("service dies")},
  };
  return all;
}
