// Asks this machine one question: keldra-query OPERATION [REFERENCE]

#include <QCoreApplication>
#include <cstdio>

#include "Platform/ThisMachine.h"
#include "Query/Query.h"

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("keldra-query"));
  const QueryResult result = runQuery(QCoreApplication::arguments(), makePlatform);
  std::fputs(result.errors.toUtf8().constData(), stderr);
  std::fputs(result.output.toUtf8().constData(), stdout);
  return result.status;
}
