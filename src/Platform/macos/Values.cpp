#include "Platform/macos/Values.h"

#include <QFile>
#include <QUrl>
#include <array>

namespace {

// The longest path that the system takes.
constexpr CFIndex kLongestPath = 1024;

bool isOfType(CFTypeRef value, CFTypeID type) {
  return value != nullptr && CFGetTypeID(value) == type;
}

const unsigned char *bytesOf(const QByteArray &bytes) {
  return reinterpret_cast<const unsigned char *>(bytes.constData());
}

}  // namespace

Owned<CFStringRef> makeText(const QString &text) {
  const QByteArray bytes = text.toUtf8();
  return Owned<CFStringRef>(CFStringCreateWithBytes(kCFAllocatorDefault, bytesOf(bytes),
                                                    bytes.size(), kCFStringEncodingUTF8, 0));
}

Owned<CFURLRef> makeFolderUrl(const QString &path) {
  const QByteArray bytes = QFile::encodeName(path);
  return Owned<CFURLRef>(CFURLCreateFromFileSystemRepresentation(kCFAllocatorDefault,
                                                                 bytesOf(bytes), bytes.size(), 1));
}

std::optional<QString> textOf(CFTypeRef value) {
  if (!isOfType(value, CFStringGetTypeID())) return std::nullopt;
  const auto text = static_cast<CFStringRef>(value);
  const CFIndex size =
      CFStringGetMaximumSizeForEncoding(CFStringGetLength(text), kCFStringEncodingUTF8) + 1;
  QByteArray bytes(size, '\0');
  if (!CFStringGetCString(text, bytes.data(), size, kCFStringEncodingUTF8)) return std::nullopt;
  return QString::fromUtf8(bytes.constData());
}

std::optional<QString> pathOf(CFTypeRef value) {
  if (!isOfType(value, CFURLGetTypeID())) return std::nullopt;
  std::array<unsigned char, kLongestPath> path{};
  const auto url = static_cast<CFURLRef>(value);
  if (!CFURLGetFileSystemRepresentation(url, 1, path.data(), kLongestPath)) return std::nullopt;
  return QFile::decodeName(reinterpret_cast<const char *>(path.data()));
}

QVariant valueOf(CFTypeRef value) {
  if (const auto text = textOf(value)) return *text;
  if (const auto path = pathOf(value)) return QUrl::fromLocalFile(*path);
  if (value == kCFBooleanTrue || value == kCFBooleanFalse) return value == kCFBooleanTrue;
  if (isOfType(value, CFUUIDGetTypeID())) {
    const auto uuid = static_cast<CFUUIDRef>(value);
    return valueOf(Owned<CFStringRef>(CFUUIDCreateString(kCFAllocatorDefault, uuid)).get());
  }
  if (!isOfType(value, CFNumberGetTypeID())) return {};
  qint64 number = 0;
  CFNumberGetValue(static_cast<CFNumberRef>(value), kCFNumberSInt64Type, &number);
  return number;
}

QVariant valueIn(CFTypeRef dictionary, const QString &key) {
  return valueOf(referenceIn(dictionary, key));
}

CFTypeRef referenceIn(CFTypeRef dictionary, const QString &key) {
  if (!isOfType(dictionary, CFDictionaryGetTypeID())) return nullptr;
  return CFDictionaryGetValue(static_cast<CFDictionaryRef>(dictionary), makeText(key).get());
}
