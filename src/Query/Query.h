#pragma once

// Answers one question about this machine, or about the machine that a file describes.
//
//   const QueryResult result = runQuery({u"keldra-query"_s, u"isGPT"_s, u"disk0"_s}, makePlatform);

#include <QStringList>
#include <chrono>
#include <functional>
#include <memory>

#include "Platform/Platform.h"

struct QueryResult {
  enum Status { Answered = 0, Absent = 1, Misuse = 2, NoService = 3 };
  Status status = Answered;  // the exit status
  QString output;            // harmful characters from outside are escaped
  QString errors;
};

using PlatformMaker = std::function<std::unique_ptr<Platform>()>;

/// `arguments` begins with the program's own name. Blocks until the disk service has answered for
/// the first time, for `patience` at most, and for as long as the operation takes.
QueryResult runQuery(const QStringList &arguments, const PlatformMaker &makeThisMachine,
                     std::chrono::milliseconds patience = std::chrono::seconds(10));
