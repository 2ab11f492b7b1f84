#include "Platform/macos/AdministratorMount.h"

#include <unistd.h>

#include <QProcess>
#include <QRegularExpression>
#include <cerrno>

#include "Foundation/SystemLog.h"

using namespace Qt::StringLiterals;

namespace {

bool isEsp(const DiskDescription &description) {
  const QString content =
      description.value(disk_service::kDADiskDescriptionMediaContentKey).toString();
  return content == "C12A7328-F81F-11D2-BA4B-00A0C93EC93B"_L1 ||
         description.value(disk_service::kDADiskDescriptionMediaNameKey) ==
             u"EFI System Partition"_s;
}

/// Empty unless the name is a BSD name, because the name becomes part of a command that root runs.
QString commandFor(const QString &bsdName) {
  static const QRegularExpression kName(
      QRegularExpression::anchoredPattern(u"disk[0-9]+(s[0-9]+)*"_s));
  if (!kName.match(bsdName).hasMatch()) return {};
  return u"do shell script \"/usr/sbin/diskutil mount %1\" with administrator privileges"_s.arg(
      bsdName);
}

std::optional<Dissenter> outcomeOf(QProcess &prompt, DissenterStatus refusal) {
  const bool hasRun = prompt.error() == QProcess::UnknownError;
  if (hasRun && prompt.exitStatus() == QProcess::NormalExit && prompt.exitCode() == 0) return {};
  const QByteArray problem = prompt.readAllStandardError();
  systemLog(u"The administrator's mount failed: "_s +
            (hasRun ? QString::fromUtf8(problem) : prompt.errorString()));
  // The text around the number is in the user's language.
  return Dissenter{problem.contains("(-128)") ? unixErrorStatus(ECANCELED) : refusal};
}

}  // namespace

bool mayAskAdministrator(const DiskDescription &description, DissenterStatus refusal) {
  const bool isRefusedToThisUser = refusal == disk_service::kDAReturnNotPermitted ||
                                   refusal == disk_service::kDAReturnNotPrivileged;
  return isRefusedToThisUser && getuid() != 0 && isEsp(description);
}

void mountAsAdministrator(const QString &bsdName, DissenterStatus refusal, const QString &root,
                          QObject &owner, DiskService::Completion completion) {
  const QString command = commandFor(bsdName);
  if (command.isEmpty()) return completion(Dissenter{refusal});
  auto *prompt = new QProcess(&owner);
  const auto end = [prompt, refusal, call = std::move(completion)] {
    prompt->disconnect();  // a start failure may emit two signals
    prompt->deleteLater();
    call(outcomeOf(*prompt, refusal));
  };
  QObject::connect(prompt, &QProcess::finished, &owner, end);
  QObject::connect(prompt, &QProcess::errorOccurred, &owner, [end](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) end();
  });
  prompt->start(root + "/usr/bin/osascript"_L1, {u"-e"_s, command});
}
