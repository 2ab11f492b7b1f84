#include "Platform/common/Jpeg2000.h"

#include <openjpeg.h>

#include <QtEndian>
#include <algorithm>
#include <cstring>
#include <memory>
#include <span>

#include "Platform/common/Codestream.h"

namespace {

using Codec = std::unique_ptr<opj_codec_t, decltype(&opj_destroy_codec)>;
using Stream = std::unique_ptr<opj_stream_t, decltype(&opj_stream_destroy)>;
using Picture = std::unique_ptr<opj_image_t, decltype(&opj_image_destroy)>;

constexpr QByteArrayView kFileStart("\0\0\0\x0cjP  \r\n\x87\n", 12);
constexpr QByteArrayView kCodestreamStart("\xff\x4f\xff\x51", 4);

/// The codestream in a file's boxes. Empty when there is none.
QByteArrayView codestreamOf(QByteArrayView bytes) {
  constexpr qsizetype kBoxHeader = 8;
  if (bytes.startsWith(kCodestreamStart)) return bytes;
  while (bytes.size() > kBoxHeader) {
    // A length of 0 means all remaining bytes. A length of 1, with a longer length after it, is for
    // files larger than any icon.
    const qsizetype told = qFromBigEndian<quint32>(bytes.data());
    const qsizetype length = told == 0 ? bytes.size() : told;
    if (length < kBoxHeader || length > bytes.size()) return {};
    if (bytes.sliced(4, 4) == "jp2c") return bytes.sliced(kBoxHeader, length - kBoxHeader);
    bytes = bytes.sliced(length);
  }
  return {};
}

/// Reads bytes in memory by the library's interface.
struct Source {
  QByteArrayView bytes;
  qsizetype position = 0;

  static OPJ_SIZE_T read(void *buffer, OPJ_SIZE_T wanted, void *data) {
    auto &source = *static_cast<Source *>(data);
    const auto left = static_cast<OPJ_SIZE_T>(source.bytes.size() - source.position);
    const OPJ_SIZE_T count = std::min(wanted, left);
    if (count == 0) return static_cast<OPJ_SIZE_T>(-1);
    std::memcpy(buffer, source.bytes.data() + source.position, count);
    source.position += static_cast<qsizetype>(count);
    return count;
  }
  static OPJ_OFF_T skip(OPJ_OFF_T count, void *data) {
    auto &source = *static_cast<Source *>(data);
    const OPJ_OFF_T left = source.bytes.size() - source.position;
    const OPJ_OFF_T skipped = std::clamp<OPJ_OFF_T>(count, 0, left);
    source.position += skipped;
    return skipped;
  }
  static OPJ_BOOL seek(OPJ_OFF_T position, void *data) {
    auto &source = *static_cast<Source *>(data);
    if (position < 0 || position > source.bytes.size()) return OPJ_FALSE;
    source.position = position;
    return OPJ_TRUE;
  }
};

Stream streamOf(Source &source) {
  Stream stream(opj_stream_default_create(OPJ_TRUE), opj_stream_destroy);
  opj_stream_set_user_data(stream.get(), &source, nullptr);
  opj_stream_set_user_data_length(stream.get(), static_cast<OPJ_UINT64>(source.bytes.size()));
  opj_stream_set_read_function(stream.get(), Source::read);
  opj_stream_set_skip_function(stream.get(), Source::skip);
  opj_stream_set_seek_function(stream.get(), Source::seek);
  return stream;
}

bool isModest(const opj_image_t &picture) {
  const std::span components(picture.comps, picture.numcomps);
  return !components.empty() && components.size() <= 4 &&
         std::all_of(components.begin(), components.end(),
                     [](const auto &each) { return each.prec <= 16; });
}

Picture decode(QByteArrayView codestream) {
  Source source{codestream};
  const Stream stream = streamOf(source);
  const Codec codec(opj_create_decompress(OPJ_CODEC_J2K), opj_destroy_codec);
  opj_dparameters_t parameters;
  opj_set_default_decoder_parameters(&parameters);
  opj_image_t *header = nullptr;
  const bool isReady = opj_setup_decoder(codec.get(), &parameters) != 0 &&
                       opj_read_header(stream.get(), codec.get(), &header) != 0;
  Picture picture(header, opj_image_destroy);
  if (!isReady || !isModest(*header) || opj_decode(codec.get(), stream.get(), header) == 0)
    picture.reset();
  return picture;
}

/// One sample scaled to eight bits from its own precision.
int byteOf(const opj_image_comp_t &component, size_t pixel) {
  constexpr int kBits = 8;
  const int bits = static_cast<int>(component.prec);
  const int lowest = component.sgnd != 0 ? -(1 << (bits - 1)) : 0;
  const int highest = (1 << bits) - 1;
  const int value = std::clamp(component.data[pixel] - lowest, 0, highest);
  return bits > kBits ? value >> (bits - kBits) : value * 255 / highest;
}

QImage imageOf(const opj_image_t &picture) {
  const std::span components(picture.comps, picture.numcomps);
  const opj_image_comp_t &first = components.front();
  for (const opj_image_comp_t &each : components) {
    if (each.data == nullptr || each.w != first.w || each.h != first.h) return {};
  }
  // Grey, grey and opacity, colours, or colours and opacity.
  const bool isGrey = components.size() < 3;
  const bool hasAlpha = components.size() % 2 == 0;
  QImage image(static_cast<int>(first.w), static_cast<int>(first.h), QImage::Format_ARGB32);
  size_t pixel = 0;
  for (int y = 0; y < image.height(); ++y) {
    auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x, ++pixel) {
      line[x] = qRgba(byteOf(first, pixel), byteOf(components[isGrey ? 0 : 1], pixel),
                      byteOf(components[isGrey ? 0 : 2], pixel),
                      hasAlpha ? byteOf(components.back(), pixel) : 255);
    }
  }
  return image;
}

}  // namespace

bool isJpeg2000(QByteArrayView bytes) {
  return bytes.startsWith(kFileStart) || bytes.startsWith(kCodestreamStart);
}

QImage imageFromJpeg2000(QByteArrayView bytes, int largestSide) {
  const QByteArrayView codestream = codestreamOf(bytes);
  if (!isModestCodestream(codestream, largestSide)) return {};
  const Picture picture = decode(codestream);
  return picture == nullptr ? QImage() : imageOf(*picture);
}
