// Texts, numbers, collections and similar values.

#include <QUuid>
#include <cstring>

#include "macos/fake/World.h"

using namespace fake;

namespace {

const std::map<int, const char *> kTypes = {{QMetaType::QString, "CFString"},
                                            {QMetaType::Int, "CFNumber"},
                                            {QMetaType::QUrl, "CFURL"},
                                            {QMetaType::QUuid, "CFUUID"},
                                            {QMetaType::QVariantMap, "CFDictionary"}};

/// Copies all bytes and a final NUL.
Boolean copyWithNul(const QByteArray &text, void *buffer, CFIndex size) {
  if (size <= text.size()) return false;
  std::memcpy(buffer, text.constData(), static_cast<std::size_t>(text.size()) + 1);
  return true;
}

QByteArray bytesOf(const unsigned char *bytes, CFIndex count) {
  return {reinterpret_cast<const char *>(bytes), count};
}

}  // namespace

Object *fake::objectOf(const QVariant &value) {
  if (value.typeId() == QMetaType::Bool)
    return checked(value.toBool() ? kCFBooleanTrue : kCFBooleanFalse);
  auto *const object = new Object(kTypes.at(value.typeId()), value);
  for (const QVariant &each : value.toMap()) object->holds.push_back(objectOf(each));
  return object;
}

QString fake::textOf(const void *string, const char *function) {
  return valueOf(string, "CFString", function).toString();
}

QString fake::pathOf(const void *url, const char *function) {
  return valueOf(url, "CFURL", function).toUrl().toLocalFile();
}

#define TYPE_ID(Type)                            \
  CFTypeID Type##GetTypeID() {                   \
    return std::hash<std::string_view>()(#Type); \
  }
TYPE_ID(CFString)
TYPE_ID(CFNumber)
TYPE_ID(CFDictionary)
TYPE_ID(CFURL)
TYPE_ID(CFUUID)

CFTypeID CFGetTypeID(CFTypeRef reference) {
  return std::hash<std::string_view>()(checked(reference)->type);
}

CFStringRef CFStringCreateWithBytes(CFAllocatorRef, const unsigned char *bytes, CFIndex count,
                                    CFStringEncoding, Boolean) {
  return as<CFStringRef>(objectOf(QString::fromUtf8(bytesOf(bytes, count))));
}

CFIndex CFStringGetLength(CFStringRef string) {
  return textOf(string).size();
}

CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding) {
  return 3 * length;
}

Boolean CFStringGetCString(CFStringRef string, char *buffer, CFIndex size, CFStringEncoding) {
  return copyWithNul(textOf(string).toUtf8(), buffer, size);
}

Boolean CFNumberGetValue(CFNumberRef number, CFNumberType, void *value) {
  *static_cast<std::int64_t *>(value) = valueOf(number, "CFNumber").toInt();
  return true;
}

CFIndex CFArrayGetCount(CFArrayRef array) {
  return static_cast<CFIndex>(checked(array, "CFArray")->holds.size());
}

const void *CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index) {
  return checked(array, "CFArray")->holds.at(static_cast<std::size_t>(index));
}

const void *CFDictionaryGetValue(CFDictionaryRef dictionary, const void *key) {
  const QStringList keys = valueOf(dictionary, "CFDictionary").toMap().keys();
  const qsizetype place = keys.indexOf(textOf(key));
  return place < 0 ? nullptr : checked(dictionary)->holds[static_cast<std::size_t>(place)];
}

CFURLRef CFURLCreateFromFileSystemRepresentation(CFAllocatorRef, const unsigned char *bytes,
                                                 CFIndex count, Boolean) {
  const QUrl url = QUrl::fromLocalFile(QString::fromUtf8(bytesOf(bytes, count)));
  return count == 0 ? nullptr : as<CFURLRef>(objectOf(url.adjusted(QUrl::StripTrailingSlash)));
}

Boolean CFURLGetFileSystemRepresentation(CFURLRef url, Boolean, unsigned char *buffer,
                                         CFIndex size) {
  return copyWithNul(pathOf(url).toUtf8(), buffer, size);
}

CFStringRef CFUUIDCreateString(CFAllocatorRef, CFUUIDRef uuid) {
  const QUuid value = valueOf(uuid, "CFUUID").toUuid();
  return as<CFStringRef>(objectOf(value.toString(QUuid::WithoutBraces).toUpper()));
}
