#pragma once

#include <QByteArray>
#include <QVariantMap>

/// The texts, numbers and booleans of the top-level dictionary of a property list, XML or binary.
/// Empty when the bytes are not a property list or its top level is not a dictionary, and for lists
/// far larger than any that describes a system or a bundle. Only for files that ship with the
/// program or with the system: a malicious list can make the library abort the program.
QVariantMap dictionaryFromPropertyList(const QByteArray &bytes);
