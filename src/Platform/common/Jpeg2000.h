#pragma once

#include <QByteArrayView>
#include <QImage>

/// Whether the bytes begin as a JPEG 2000 file or as the bare codestream of one.
bool isJpeg2000(QByteArrayView bytes);

/// Null when the bytes do not decode, or are no icon: wider or higher than `largestSide`, or made to
/// be slow.
QImage imageFromJpeg2000(QByteArrayView bytes, int largestSide);
