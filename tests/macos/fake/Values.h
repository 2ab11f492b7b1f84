#pragma once

// Texts, numbers, collections and their like.

#include <map>
#include <optional>
#include <string>

#include "macos/fake/Fake.h"
#include "macos/fake/Objects.h"

namespace fake {

struct String : Object {
  static constexpr char kType[] = "CFString";
  explicit String(std::string text) : Object(kType), characters(std::move(text)) {}
  std::string text() const override { return characters; }
  std::string characters;
};

struct Number : Object {
  static constexpr char kType[] = "CFNumber";
  explicit Number(std::int64_t number) : Object(kType), value(number) {}
  std::string text() const override { return std::to_string(value); }
  std::int64_t value;
};

struct Bool : Object {
  static constexpr char kType[] = "CFBoolean";
  explicit Bool(bool truth) : Object(kType), value(truth) {}
  bool value;
};

struct UuidObject : Object {
  static constexpr char kType[] = "CFUUID";
  explicit UuidObject(std::string text) : Object(kType), canonical(std::move(text)) {}
  std::string text() const override { return canonical; }
  std::string canonical;
};

struct Url : Object {
  static constexpr char kType[] = "CFURL";
  Url(std::string path, bool directory, std::string folder = {});
  /// As a program compares it: the URL of a folder ends with "/", whatever is there.
  std::string text() const override { return path() + (isDirectory ? "/" : ""); }
  std::string path() const { return base + relative; }
  std::string base;  // with its last "/"; empty for an absolute one
  std::string relative;
  bool isDirectory;
};

/// Its elements are what it holds.
struct ArrayObject : Object {
  static constexpr char kType[] = "CFArray";
  ArrayObject() : Object(kType) {}
};

/// Its values are what it holds.
struct DictionaryObject : Object {
  static constexpr char kType[] = "CFDictionary";
  DictionaryObject() : Object(kType) {}
  std::map<std::string, Object *> values;
};

/// A new object that stands for the value, or the value that an object stands for.
Object *objectOf(const Value &value, const char *maker);
Value valueOf(const Object &object);

/// The text of a CFString; absent after a report.
std::optional<std::string> textOf(const void *string, const char *function = __builtin_FUNCTION());

}  // namespace fake
