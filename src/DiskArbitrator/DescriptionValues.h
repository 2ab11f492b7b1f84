#pragma once

// Reading one value of the description of whatever a reference names.

#include <QVariant>

#include "DiskArbitrator/GetDADiskDescription.h"
#include "Foundation/Text.h"

/// The value under the key; invalid where the reference, the disk or the key is unknown.
inline QVariant descriptionValue(const QString &reference, const QString &key) {
  return getDAdiskDescriptionFromBSDorMountpoint(reference).value_or(DiskDescription()).value(key);
}

/// A text as it is handed out: the service's own "(null)" becomes "N/A".
inline QString withoutNull(const QString &text) {
  return text == QLatin1StringView("(null)") ? QStringLiteral("N/A") : text;
}

inline OptionalText descriptionText(const QString &reference, const QString &key) {
  const QVariant value = descriptionValue(reference, key);
  if (!value.isValid()) return std::nullopt;
  return withoutNull(value.toString());
}
