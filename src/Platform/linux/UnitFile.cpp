#include "Platform/linux/UnitFile.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include "Foundation/PlainFile.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLargestUnitFile = 1024 * 1024;
constexpr int kNumberLimit = 1'000'000;

bool isNumber(const QJsonValue &value) {
  return value.isDouble() && value.toInt(-1) >= 0 && value.toInt() <= kNumberLimit;
}

}  // namespace

UnitFile::UnitFile(QString path, QString boot) : _path(std::move(path)), _boot(std::move(boot)) {}

Units UnitFile::read() const {
  const auto file = readPlainFile(QFile::encodeName(_path), kLargestUnitFile);
  const auto *bytes = std::get_if<QByteArray>(&file);
  if (bytes == nullptr) return {};
  const QJsonObject content = QJsonDocument::fromJson(*bytes).object();
  if (content["boot"_L1].toString() != _boot || !isNumber(content["next"_L1])) return {};
  Units units{{}, content["next"_L1].toInt()};
  QSet<int> used;
  const QJsonObject numbers = content["units"_L1].toObject();
  for (auto entry = numbers.begin(); entry != numbers.end(); ++entry) {
    const int number = entry->toInt();
    if (!isNumber(*entry) || number >= units.next || used.contains(number)) return {};
    used.insert(number);
    units.numbers.insert(entry.key(), number);
  }
  return units;
}

QByteArray UnitFile::bytesOf(const Units &units) const {
  QJsonObject numbers;
  for (auto unit = units.numbers.begin(); unit != units.numbers.end(); ++unit) {
    numbers.insert(unit.key(), unit.value());
  }
  const QJsonObject content{{u"boot"_s, _boot}, {u"next"_s, units.next}, {u"units"_s, numbers}};
  return QJsonDocument(content).toJson(QJsonDocument::Compact);
}
