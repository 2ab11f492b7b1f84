#pragma once

#include <QString>
#include <QVariant>
#include <optional>

#include "Foundation/Text.h"
#include "Platform/DiskDescription.h"

/// The description of whatever a disk reference names. A disk reference is a BSD name ("disk0s1"),
/// a device path ("/dev/disk0s1") or the path of a mounted volume ("/Volumes/EFI", "/"), which a link may lead to.
///
/// Empty when the disk service does not know the disk. Absent when the text is not a reference at
/// all: neither of the two kinds of name, nor a path at which anything exists.
std::optional<DiskDescription> getDAdiskDescriptionFromBSDorMountpoint(const QString &reference);

/// The value under the key; invalid where the reference, the disk or the key is unknown.
inline QVariant descriptionValue(const QString &reference, const QString &key) {
  return getDAdiskDescriptionFromBSDorMountpoint(reference).value_or(DiskDescription()).value(key);
}

/// A text as it is returned to callers: the service's own "(null)" becomes "N/A".
inline QString withoutNull(const QString &text) {
  return text == QLatin1StringView("(null)") ? QStringLiteral("N/A") : text;
}

inline OptionalText descriptionText(const QString &reference, const QString &key) {
  const QVariant value = descriptionValue(reference, key);
  if (!value.isValid()) return std::nullopt;
  return withoutNull(value.toString());
}
