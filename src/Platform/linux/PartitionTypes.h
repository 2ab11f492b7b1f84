#pragma once

// What the types in partition tables mean. A type is a GUID, or "0x" and two hexadecimal digits.

#include <QString>

bool isSystemPartitionType(const QString &type);

/// The purpose of a partition of this type, in plain words: "Linux swap", or just "Partition".
QString partitionTypeName(const QString &type);
