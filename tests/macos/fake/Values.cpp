// Texts, numbers, collections and their like.

#include <QUuid>
#include <cstring>

#include "macos/fake/World.h"

using namespace fake;

namespace {

const std::map<int, const char *> kTypes = {
    {QMetaType::QString, "CFString"}, {QMetaType::Bool, "CFBoolean"},
    {QMetaType::Int, "CFNumber"},     {QMetaType::QUrl, "CFURL"},
    {QMetaType::QUuid, "CFUUID"},     {QMetaType::QVariantMap, "CFDictionary"}};

CFTypeID typeId(std::string_view type) {
  return std::hash<std::string_view>()(type);
}

/// As many bytes as there are, and the NUL behind them.
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

#define TYPE_ID(Type)          \
  CFTypeID Type##GetTypeID() { \
    return typeId(#Type);      \
  }
TYPE_ID(CFString)
TYPE_ID(CFNumber)
TYPE_ID(CFBoolean)
TYPE_ID(CFDictionary)
TYPE_ID(CFURL)
TYPE_ID(CFUUID)

CFTypeID CFGetTypeID(CFTypeRef reference) {
  const Object *const object = checked(reference);
  return object == nullptr ? 0 : typeId(object->type);
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

Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void *value) {
  expect(type == kCFNumberSInt64Type);
  *static_cast<std::int64_t *>(value) = valueOf(number, "CFNumber").toInt();
  return true;
}

Boolean CFBooleanGetValue(CFBooleanRef boolean) {
  return valueOf(boolean, "CFBoolean").toBool();
}

CFIndex CFArrayGetCount(CFArrayRef array) {
  const Object *const object = checked(array, "CFArray");
  return object == nullptr ? 0 : static_cast<CFIndex>(object->holds.size());
}

const void *CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index) {
  const bool isThere = index >= 0 && index < CFArrayGetCount(array);
  expect(isThere);
  return isThere ? checked(array)->holds[static_cast<std::size_t>(index)] : nullptr;
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

Boolean CFURLGetFileSystemRepresentation(CFURLRef url, Boolean resolveAgainstBase,
                                         unsigned char *buffer, CFIndex size) {
  expect(resolveAgainstBase);
  return copyWithNul(pathOf(url).toUtf8(), buffer, size);
}

CFStringRef CFUUIDCreateString(CFAllocatorRef, CFUUIDRef uuid) {
  const QUuid value = valueOf(uuid, "CFUUID").toUuid();
  return as<CFStringRef>(objectOf(value.toString(QUuid::WithoutBraces).toUpper()));
}
