#include "Platform/DiskDescription.h"

#include <QUuid>
#include <utility>

std::optional<DiskUUID> DiskUUID::fromText(const QString &text) {
  constexpr qsizetype kCanonicalLength = 36;
  const QUuid uuid = QUuid::fromString(text);
  if (text.size() != kCanonicalLength || uuid.isNull()) return std::nullopt;
  return DiskUUID(uuid.toString(QUuid::WithoutBraces).toUpper());
}

DiskUUID::DiskUUID(QString canonical) : _canonical(std::move(canonical)) {}

QString DiskUUID::description() const {
  const auto address = reinterpret_cast<quintptr>(_canonical.constData());
  return QStringLiteral("<UUID 0x%1> %2").arg(address, 0, 16).arg(_canonical);
}
