#pragma once

// Pictures out of icon files.
//
// Such a file may come from any volume that somebody plugs in, so it is not trusted: what decoding
// may cost in memory and time is limited by what an icon can need, whatever the file says of itself.

#include <QByteArray>
#include <QImage>

/// The largest picture in the bytes of an icns file that decodes, also that of a bare PNG or JPEG 2000
/// file; made smaller where it has more than `kLargestIconSide` pixels in width or height, so that many
/// can be kept. Null when there is none.
QImage iconFromBytes(const QByteArray &bytes);

inline constexpr int kLargestIconSide = 256;
