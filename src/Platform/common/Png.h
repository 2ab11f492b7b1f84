#pragma once

#include <QByteArrayView>
#include <QImage>

bool isPng(QByteArrayView bytes);

/// Null when the bytes do not decode, or are no icon: wider or higher than `largestSide`, or packed so
/// that they unpack to more than their pixels.
QImage imageFromPng(QByteArrayView bytes, int largestSide);
