#pragma once

#include <QByteArrayView>
#include <QImage>

bool isPng(QByteArrayView bytes);

/// Null when the bytes do not decode, or are not an icon: wider or higher than `largestSide`, or with
/// data that unpack to more than the pixels need.
QImage imageFromPng(QByteArrayView bytes, int largestSide);
