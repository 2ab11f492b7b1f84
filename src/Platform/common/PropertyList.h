#pragma once

#include <QByteArray>
#include <QVariantMap>

/// The texts, numbers and booleans of the dictionary at the top of a property list, XML or binary.
/// Empty when the bytes are no property list or its top is no dictionary, and for lists far beyond
/// the size of any that describes a system or a bundle. Only for files that ship with the program or
/// with the system: the library ends the program over some that are made to do that.
QVariantMap dictionaryFromPropertyList(const QByteArray &bytes);
