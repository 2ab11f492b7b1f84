#pragma once

#include <QString>
#include <memory>
#include <system_error>

/// Why something could not be done, in words for a person and in numbers for a program.
struct Error {
  QString domain;  // where `code` is defined
  int code = 0;
  QString localizedDescription;
  QString localizedFailureReason = {};           // empty where there is no more to say
  std::shared_ptr<const Error> underlying = {};  // the cause; null where it is not known

  /// All of it in one line, for the log.
  QString description() const {
    QString text = QStringLiteral("%1 (%2 %3)").arg(localizedDescription, domain).arg(code);
    if (!localizedFailureReason.isEmpty()) text += QStringLiteral(": ") + localizedFailureReason;
    if (underlying) text += QStringLiteral(": ") + underlying->description();
    return text;
  }
};

// Domains and codes of what goes wrong with files.
inline const QString kPOSIXErrorDomain = QStringLiteral("NSPOSIXErrorDomain");
inline const QString kCocoaErrorDomain = QStringLiteral("NSCocoaErrorDomain");
inline constexpr int kFileReadCorruptFile = 259;
inline constexpr int kFileWriteUnknown = 512;

/// What the system said by this error number.
inline Error posixError(int number) {
  return {kPOSIXErrorDomain, number,
          QString::fromStdString(std::generic_category().message(number))};
}
