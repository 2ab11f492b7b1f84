#pragma once

// Icons from before true colour: each pixel is an index into a fixed palette.

#include <QByteArrayView>
#include <QImage>

/// `bits` for each pixel: 8, 4, or 1 for black on white. `mask` has one bit for each pixel, set where
/// the picture is opaque; without a mask of the right length all is opaque. Null when there are too
/// few pixels.
QImage imageFromIndices(QByteArrayView pixels, int bits, QByteArrayView mask, int side);
