#include "Query/Query.h"

#include <QCommandLineParser>
#include <QTimer>
#include <variant>

#include "DiskArbitrator/DiskArbitrator.h"
#include "Foundation/NotificationCenter.h"
#include "Platform/common/SystemClock.h"
#include "Platform/simulated/MachineFile.h"
#include "Platform/simulated/SimulatedPlatform.h"
#include "Query/Answers.h"
#include "Query/Operations.h"

using namespace Qt::StringLiterals;

namespace {

using enum QueryResult::Status;

const QCommandLineOption kHelp({u"h"_s, u"help"_s}, u"Shows this."_s);
const QCommandLineOption kJson(u"json"_s, u"Prints the answer as one line of JSON."_s);
const QCommandLineOption kMachine(u"machine"_s, u"Asks the machine that FILE describes."_s,
                                  u"FILE"_s);

QueryResult misuse(const QString &reason) {
  return {Misuse, {}, u"keldra-query: %1 (--help tells more)\n"_s.arg(reason)};
}

QString help(const QCommandLineParser &parser) {
  QString text = parser.helpText() + u"\nOperations:\n"_s;
  for (const Operation &operation : operations()) {
    using enum Operation::Takes;
    const QLatin1StringView argument = operation.takes == Reference ? " REFERENCE"_L1
                                       : operation.takes == Folder  ? " FOLDER"_L1
                                                                    : ""_L1;
    text += "  "_L1 + operation.name + argument + "\n      "_L1 + operation.sentence + u'\n';
  }
  return text;
}

void describe(QCommandLineParser &parser) {
  parser.setApplicationDescription(
      u"Asks one question about this machine's disks and prints the answer.\n\n"
      "A text is printed in quotes, and marked as a sentinel where it stands for a failure.\n"
      "Exit status: 0 when there is an answer, 1 when it is absent, 2 for a wrong command,\n"
      "3 when no disk service answers."_s);
  parser.addOptions({kHelp, kJson, kMachine});
  parser.addPositionalArgument(u"OPERATION"_s, u"One of the operations below."_s);
  parser.addPositionalArgument(u"REFERENCE"_s,
                               u"\"disk0s1\", \"/dev/disk0s1\" or the path of a mounted volume."_s,
                               u"[REFERENCE]"_s);
}

/// The operation that the command line names, or what is wrong with it.
std::variant<Operation, QString> operationOf(const QStringList &words) {
  if (words.isEmpty()) return u"an operation is needed"_s;
  for (const Operation &operation : operations()) {
    if (operation.name != words[0]) continue;
    const bool takesNothing = operation.takes == Operation::Takes::Nothing;
    if (words.size() == (takesNothing ? 1 : 2)) return operation;
    return operation.name + (takesNothing ? " takes no argument"_L1 : " takes one argument"_L1);
  }
  return u"there is no operation "_s + quoted(words[0]);
}

std::variant<std::unique_ptr<Platform>, QString> platformOf(const QCommandLineParser &parser,
                                                            const PlatformMaker &makeThisMachine) {
  if (!parser.isSet(kMachine)) return makeThisMachine();
  auto machine = loadMachineFile(parser.value(kMachine));
  if (const auto *error = std::get_if<MachineFileError>(&machine)) return quoted(error->text());
  return std::make_unique<SimulatedPlatform>(std::get<Machine>(std::move(machine)),
                                             std::make_unique<SystemClock>());
}

/// False when no service answers within this time.
bool waitForService(Platform &platform, std::chrono::milliseconds patience) {
  using enum DiskService::Presence;
  bool finished = platform.diskService().presence() != Asking;
  const auto finish = [&] {
    finished = true;
    platform.runLoop().stop();
  };
  QObject observer;
  platform.workspaceNotificationCenter().addObserver(
      &observer, kNSWorkspaceDidMountNotification, [&](const Notification &) {
        if (platform.diskService().presence() != Asking) finish();
      });
  QTimer::singleShot(patience, &observer, finish);
  platform.runLoop().run(finished);
  return platform.diskService().presence() == Answering;
}

QueryResult ask(const Operation &operation, const QString &argument, bool asJson) {
  QueryResult result;
  QObject observer;
  NotificationCenter::defaultCenter().addObserver(
      &observer, kArbitratorNotification, [&](const Notification &note) {
        result.errors += quoted(note.userInfo.value(kNoteKey).toString()) + u'\n';
      });
  const QJsonValue answer = operation.answer(argument);
  result.status = answer.isNull() ? Absent : Answered;
  result.output = asJson ? jsonAnswer(operation, argument, answer) : plainAnswer(operation, answer);
  return result;
}

}  // namespace

QueryResult runQuery(const QStringList &arguments, const PlatformMaker &makeThisMachine,
                     std::chrono::milliseconds patience) {
  QCommandLineParser parser;
  describe(parser);
  if (!parser.parse(arguments)) return misuse(quoted(parser.errorText()));
  if (parser.isSet(kHelp)) return {Answered, help(parser), {}};

  const QStringList words = parser.positionalArguments();
  const auto operation = operationOf(words);
  if (const auto *problem = std::get_if<QString>(&operation)) return misuse(*problem);
  const auto platform = platformOf(parser, makeThisMachine);
  if (const auto *problem = std::get_if<QString>(&platform)) return misuse(*problem);

  Platform &machine = *std::get<std::unique_ptr<Platform>>(platform);
  const CurrentPlatform current(machine);
  if (!waitForService(machine, patience)) {
    return {NoService, {}, u"keldra-query: no disk service answers\n"_s};
  }
  return ask(std::get<Operation>(operation), words.value(1), parser.isSet(kJson));
}
