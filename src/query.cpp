// Asks this machine one question: keldra-query OPERATION [REFERENCE]

#include <QCoreApplication>
#include <cstdio>
#include <span>

#include "Foundation/Paths.h"
#include "Platform/ThisMachine.h"
#include "Query/Query.h"

int main(int argc, char **argv) {
  prepareProcess(argv);
  const QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("keldra-query"));
  QStringList arguments;
  for (const char *each : std::span(argv, static_cast<size_t>(argc)))
    arguments += pathFromBytes(each);
  const QueryResult result = runQuery(arguments, makePlatform);
  std::fputs(result.errors.toUtf8().constData(), stderr);
  std::fputs(result.output.toUtf8().constData(), stdout);
  return result.status;
}
