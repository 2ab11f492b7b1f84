#pragma once

#include <QByteArrayView>

/// Whether decoding a JPEG 2000 codestream costs no more than an icon of that width and height is
/// worth. A few hundred bytes can ask a decoder for gigabytes, by tiles, layers or precincts without
/// number; icons have one tile and a few layers. Looks at all headers and at no picture data.
bool isModestCodestream(QByteArrayView codestream, int largestSide);
