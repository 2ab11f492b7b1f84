// Icon files, and the pictures of all kinds in them.

#include "Platform/common/IconImage.h"
#include "fuzz/Fuzzer.h"

void fuzz(const QByteArray &bytes) {
  const QImage image = iconFromBytes(bytes);
  mustHold(image.width() <= kLargestIconSide && image.height() <= kLargestIconSide);
}
