#pragma once

// The two ways of packing pixels that icon files have of their own: each channel is a plane of
// bytes, in which equal neighbours are written as a run.

#include <QByteArrayView>
#include <QImage>

/// Opacity, red, green and blue. Null when the bytes are not `side` times `side` pixels.
QImage imageFromArgbRuns(QByteArrayView bytes, int side);

/// Red, green and blue, in runs or plain. `mask` is the opacity, a plain plane; without one of the
/// right length the picture is opaque.
QImage imageFromRgbRuns(QByteArrayView bytes, QByteArrayView mask, int side);
