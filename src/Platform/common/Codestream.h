#pragma once

#include <QByteArrayView>

/// Whether decoding a JPEG 2000 codestream costs no more than an icon of that width and height may.
/// A few hundred bytes can make a decoder use gigabytes, by countless tiles, layers or precincts;
/// icons have one tile and a few layers. Checks all headers and no picture data.
bool isModestCodestream(QByteArrayView codestream, int largestSide);
