#pragma once

// Icons of the time before true colours: an index into a palette that everybody knew for each pixel.

#include <QByteArrayView>
#include <QImage>

/// `bits` for each pixel: 8, 4, or 1 for black on white. `mask` has one, for what is not transparent;
/// without one of the right length the picture is opaque. Null when the pixels are too few.
QImage imageFromIndices(QByteArrayView pixels, int bits, QByteArrayView mask, int side);
