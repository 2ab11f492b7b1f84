#include "Platform/common/SettingsDefaults.h"

#include <QFile>
#include <cerrno>

#include "Foundation/PlainFile.h"
#include "Foundation/SystemLog.h"
#include "Platform/common/KeyFile.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLargestSettings = 64 * 1024;
const QByteArray kGroup = "General";

/// Absent, with a reason in the log, when a file exists but cannot be read.
std::optional<KeyFile> readSettings(const QString &fileName) {
  const auto content = readPlainFile(QFile::encodeName(fileName), kLargestSettings);
  if (const auto *bytes = std::get_if<QByteArray>(&content)) return KeyFile(*bytes);
  const Error &problem = std::get<Error>(content);
  if (problem.code == ENOENT) return KeyFile({});
  systemLog(u"%1 is not read: %2"_s.arg(fileName, problem.localizedDescription));
  return std::nullopt;
}

}  // namespace

bool SettingsDefaults::canBeRead() const {
  return readSettings(_fileName).has_value();
}

QVariant SettingsDefaults::object(const QString &key) const {
  if (_set.contains(key)) return QString::fromUtf8(_set.value(key));
  const auto settings = readSettings(_fileName);
  auto value = settings ? settings->value(kGroup, key.toUtf8()) : std::nullopt;
  if (!value) return {};
  // A text with special characters is written in quotes.
  if (value->size() > 1 && value->startsWith('"') && value->endsWith('"'))
    value = value->sliced(1, value->size() - 2);
  return QString::fromUtf8(*value);
}

void SettingsDefaults::setBool(const QString &key, bool value) {
  _set.insert(key, value ? "true" : "false");
}

void SettingsDefaults::synchronize() {
  auto settings = readSettings(_fileName);
  if (!settings || _set.isEmpty()) return;
  for (auto entry = _set.cbegin(); entry != _set.cend(); ++entry)
    settings->setValue(kGroup, entry.key().toUtf8(), entry.value());
  if (!PlainFileWriter(_fileName).write(settings->bytes())) _set.clear();
}
