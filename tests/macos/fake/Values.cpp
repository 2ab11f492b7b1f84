#include "macos/fake/Values.h"

#include <CoreFoundation/CoreFoundation.h>

#include <QString>
#include <QStringDecoder>
#include <cstring>

#include "macos/fake/World.h"

namespace fake {

namespace {

Object *made(const std::string &text, const char *maker) {
  return make<String>(maker, text);
}
Object *made(std::int64_t value, const char *maker) {
  return make<Number>(maker, value);
}
Object *made(const Path &path, const char *maker) {
  return make<Url>(maker, path.text, true);
}
Object *made(const Uuid &uuid, const char *maker) {
  return make<UuidObject>(maker, uuid.text);
}

Object *made(bool value, const char * /*maker*/) {
  return find(value ? kCFBooleanTrue : kCFBooleanFalse);
}

Object *made(const Array &elements, const char *maker) {
  auto *const array = make<ArrayObject>(maker);
  for (const Value &each : elements) array->holds.push_back(objectOf(each, maker));
  return array;
}

Object *made(const Dictionary &values, const char *maker) {
  auto *const dictionary = make<DictionaryObject>(maker);
  for (const auto &[key, value] : values) {
    Object *const object = objectOf(value, maker);
    dictionary->values[key] = object;
    dictionary->holds.push_back(object);
  }
  return dictionary;
}

}  // namespace

Url::Url(std::string path, bool directory, std::string folder)
    : Object(kType), base(std::move(folder)), relative(std::move(path)), isDirectory(directory) {
  if (relative.size() > 1 && relative.ends_with('/')) relative.pop_back();
}

Object *objectOf(const Value &value, const char *maker) {
  return std::visit([maker](const auto &each) { return made(each, maker); },
                    static_cast<const AnyValue &>(value));
}

Value valueOf(const Object &object) {
  if (object.type == String::kType) return static_cast<const String &>(object).characters;
  if (object.type == Number::kType) return static_cast<const Number &>(object).value;
  if (object.type == Bool::kType) return static_cast<const Bool &>(object).value;
  report("A " + std::string(object.type) + " is nothing that a program here stores.");
  return false;
}

std::optional<std::string> textOf(const void *string, const char *function) {
  const auto *const object = checked<String>(string, function);
  return object == nullptr ? std::nullopt : std::optional(object->characters);
}

namespace {

/// As many bytes as there are, and the NUL behind them.
template <class Character>
Boolean copyWithNul(const std::string &text, Character *buffer, CFIndex size) {
  if (buffer == nullptr || size <= static_cast<CFIndex>(text.size())) return false;
  std::memcpy(buffer, text.c_str(), text.size() + 1);
  return true;
}

template <class T>
CFTypeID typeIdOf() {
  return reinterpret_cast<CFTypeID>(T::kType);
}

bool areEqual(const Object &a, const Object &b) {
  const std::set<const char *> comparedByText = {String::kType, Number::kType, Url::kType,
                                                 UuidObject::kType};
  if (a.type != b.type || !comparedByText.contains(a.type)) return &a == &b;
  return a.text() == b.text();
}

}  // namespace

}  // namespace fake

using namespace fake;

Boolean CFEqual(CFTypeRef a, CFTypeRef b) {
  const Object *const left = usable(a, __func__);
  const Object *const right = usable(b, __func__);
  return left != nullptr && right != nullptr && areEqual(*left, *right);
}

CFTypeID CFStringGetTypeID() {
  return typeIdOf<String>();
}
CFTypeID CFNumberGetTypeID() {
  return typeIdOf<Number>();
}
CFTypeID CFBooleanGetTypeID() {
  return typeIdOf<Bool>();
}
CFTypeID CFArrayGetTypeID() {
  return typeIdOf<ArrayObject>();
}
CFTypeID CFDictionaryGetTypeID() {
  return typeIdOf<DictionaryObject>();
}
CFTypeID CFURLGetTypeID() {
  return typeIdOf<Url>();
}
CFTypeID CFUUIDGetTypeID() {
  return typeIdOf<UuidObject>();
}

CFStringRef CFStringCreateWithBytes(CFAllocatorRef, const unsigned char *bytes, CFIndex count,
                                    CFStringEncoding, Boolean) {
  const std::string text(reinterpret_cast<const char *>(bytes), static_cast<std::size_t>(count));
  QStringDecoder decoder(QStringDecoder::Utf8);
  const QString decoded = decoder(QByteArrayView(text));
  return decoder.hasError() ? nullptr : as<CFStringRef>(make<String>(__func__, text));
}

CFIndex CFStringGetLength(CFStringRef string) {
  return QString::fromStdString(textOf(string).value_or("")).size();
}

CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding) {
  return 3 * length;
}

Boolean CFStringGetCString(CFStringRef string, char *buffer, CFIndex size, CFStringEncoding) {
  const auto text = textOf(string);
  return text.has_value() && copyWithNul(*text, buffer, size);
}

Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void *value) {
  const auto *const object = checked<Number>(number);
  if (type != kCFNumberSInt64Type) report("CFNumberGetValue: only 64 bits are known here");
  if (object == nullptr || type != kCFNumberSInt64Type) return false;
  std::memcpy(value, &object->value, sizeof object->value);
  return true;
}

Boolean CFBooleanGetValue(CFBooleanRef boolean) {
  const auto *const object = checked<Bool>(boolean);
  return object != nullptr && object->value;
}

CFIndex CFArrayGetCount(CFArrayRef array) {
  const auto *const object = checked<ArrayObject>(array);
  return object == nullptr ? 0 : static_cast<CFIndex>(object->holds.size());
}

const void *CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index) {
  const auto *const object = checked<ArrayObject>(array);
  if (object == nullptr) return nullptr;
  if (index >= 0 && index < static_cast<CFIndex>(object->holds.size())) {
    return object->holds[static_cast<std::size_t>(index)];
  }
  report("CFArrayGetValueAtIndex: there is no element " + std::to_string(index));
  return nullptr;
}

const void *CFDictionaryGetValue(CFDictionaryRef dictionary, const void *key) {
  const auto *const object = checked<DictionaryObject>(dictionary);
  const auto text = textOf(key);
  if (object == nullptr || !text.has_value()) return nullptr;
  const auto place = object->values.find(*text);
  return place == object->values.end() ? nullptr : place->second;
}

CFURLRef CFURLCreateFromFileSystemRepresentation(CFAllocatorRef, const unsigned char *bytes,
                                                 CFIndex count, Boolean isDirectory) {
  if (count == 0) return nullptr;
  const std::string path(reinterpret_cast<const char *>(bytes), static_cast<std::size_t>(count));
  return as<CFURLRef>(make<Url>(__func__, path, isDirectory != 0));
}

Boolean CFURLGetFileSystemRepresentation(CFURLRef url, Boolean resolveAgainstBase,
                                         unsigned char *buffer, CFIndex size) {
  const auto *const object = checked<Url>(url);
  if (object == nullptr) return false;
  return copyWithNul(resolveAgainstBase ? object->path() : object->relative, buffer, size);
}

CFStringRef CFUUIDCreateString(CFAllocatorRef, CFUUIDRef uuid) {
  const auto *const object = checked<UuidObject>(uuid);
  return object == nullptr ? nullptr : as<CFStringRef>(make<String>(__func__, object->text()));
}
