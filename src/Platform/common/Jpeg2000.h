#pragma once

#include <QByteArrayView>
#include <QImage>

/// Whether the bytes begin like a JPEG 2000 file or like its bare codestream.
bool isJpeg2000(QByteArrayView bytes);

/// Null when the bytes do not decode, or are not an icon: wider or higher than `largestSide`, or too
/// costly to decode.
QImage imageFromJpeg2000(QByteArrayView bytes, int largestSide);
