#pragma once

#include <QByteArrayView>

/// Whether a binary property list is of the size that its bytes suggest. An object may be referred
/// to from many places and is copied to each when it is read, so that some two hundred bytes can
/// stand for more than any memory holds, and be nested deeper than any stack. False also for most
/// of what is malformed. Takes time in proportion to the bytes.
bool isBinaryPropertyListBounded(QByteArrayView bytes);
