// Texts, numbers, collections and their like.

#include <QString>
#include <cstring>

#include "macos/fake/World.h"

using namespace fake;

Object *fake::objectOf(const Value &value, const char *maker) {
  constexpr const char *kTypes[] = {"CFString", "CFBoolean", "CFNumber",
                                    "CFURL",    "CFUUID",    "CFDictionary"};
  Object *const object = make(kTypes[value.index()], value, maker);
  if (const auto *values = std::get_if<Dictionary>(&value)) {
    for (const auto &[key, each] : *values) object->holds.push_back(objectOf(each, maker));
  }
  return object;
}

std::string fake::textOf(const void *string, const char *function) {
  return valueOf<std::string>(string, "CFString", function);
}

std::string fake::pathOf(const void *url, const char *function) {
  const auto path = valueOf<Path>(url, "CFURL", function);
  return path.base + path.text;
}

namespace {

CFTypeID typeId(std::string_view type) {
  return std::hash<std::string_view>()(type);
}

/// As many bytes as there are, and the NUL behind them.
Boolean copyWithNul(const std::string &text, void *buffer, CFIndex size) {
  if (size <= static_cast<CFIndex>(text.size())) return false;
  std::memcpy(buffer, text.c_str(), text.size() + 1);
  return true;
}

std::string stringOf(const unsigned char *bytes, CFIndex count) {
  return {reinterpret_cast<const char *>(bytes), static_cast<std::size_t>(count)};
}

}  // namespace

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
  const std::string text = stringOf(bytes, count);
  const bool isUtf8 = QString::fromStdString(text).toStdString() == text;
  return isUtf8 ? as<CFStringRef>(objectOf(text)) : nullptr;
}

CFIndex CFStringGetLength(CFStringRef string) {
  return QString::fromStdString(textOf(string)).size();
}

CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding) {
  return 3 * length;
}

Boolean CFStringGetCString(CFStringRef string, char *buffer, CFIndex size, CFStringEncoding) {
  return checked(string, "CFString") != nullptr && copyWithNul(textOf(string), buffer, size);
}

Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void *value) {
  expect(type == kCFNumberSInt64Type);
  *static_cast<std::int64_t *>(value) = valueOf<std::int64_t>(number, "CFNumber");
  return true;
}

Boolean CFBooleanGetValue(CFBooleanRef boolean) {
  return valueOf<bool>(boolean, "CFBoolean");
}

CFIndex CFArrayGetCount(CFArrayRef array) {
  const Object *const object = checked(array, "CFArray");
  return object == nullptr ? 0 : static_cast<CFIndex>(object->holds.size());
}

const void *CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index) {
  const bool isThere = index >= 0 && index < CFArrayGetCount(array);
  if (isThere) return checked(array)->holds[static_cast<std::size_t>(index)];
  report("CFArrayGetValueAtIndex: there is no element " + std::to_string(index));
  return nullptr;
}

const void *CFDictionaryGetValue(CFDictionaryRef dictionary, const void *key) {
  const auto values = valueOf<Dictionary>(dictionary, "CFDictionary");
  const auto place = values.find(textOf(key));
  if (place == values.end()) return nullptr;
  return *std::next(checked(dictionary)->holds.begin(), std::distance(values.begin(), place));
}

CFURLRef CFURLCreateFromFileSystemRepresentation(CFAllocatorRef, const unsigned char *bytes,
                                                 CFIndex count, Boolean) {
  std::string path = stringOf(bytes, count);
  if (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path.empty() ? nullptr : as<CFURLRef>(objectOf(Path{path}));
}

Boolean CFURLGetFileSystemRepresentation(CFURLRef url, Boolean resolveAgainstBase,
                                         unsigned char *buffer, CFIndex size) {
  const std::string path = resolveAgainstBase ? pathOf(url) : valueOf<Path>(url, "CFURL").text;
  return !path.empty() && copyWithNul(path, buffer, size);
}

CFStringRef CFUUIDCreateString(CFAllocatorRef, CFUUIDRef uuid) {
  return as<CFStringRef>(objectOf(valueOf<Uuid>(uuid, "CFUUID").text));
}
