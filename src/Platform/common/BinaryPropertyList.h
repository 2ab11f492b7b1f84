#pragma once

#include <QByteArrayView>

/// Whether the library may be let loose on a binary property list. Not on one that is larger than
/// its bytes suggest: an object may be referred to from many places and is copied to each, so that
/// some two hundred bytes can stand for more than any memory holds, and be nested deeper than any
/// stack. Nor on one with a NUL in a text, over which the library ends the program. False also for
/// most of what is malformed.
bool isSoundBinaryPropertyList(QByteArrayView bytes);
