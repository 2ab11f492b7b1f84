#pragma once

// Pictures out of icon files.
//
// An icon file may come from any volume that is plugged in, so it is not trusted: the memory and
// time for decoding are limited to what an icon can need, whatever sizes the file claims.

#include <QByteArray>
#include <QImage>

/// The largest picture that decodes in an icns file, or in a bare PNG or JPEG 2000 file. A picture
/// wider or higher than `kLargestIconSide` pixels is scaled down, so that many can be kept. Null when
/// there is none.
QImage iconFromBytes(const QByteArray &bytes);

inline constexpr int kLargestIconSide = 256;
