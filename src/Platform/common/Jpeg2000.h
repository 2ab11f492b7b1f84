#pragma once

#include <QByteArrayView>
#include <QImage>

/// Whether the bytes begin as a JPEG 2000 file or as the bare codestream of one.
bool isJpeg2000(QByteArrayView bytes);

/// Null when the bytes do not decode, or are no icon: too large, or made to be slow.
QImage imageFromJpeg2000(QByteArrayView bytes);
