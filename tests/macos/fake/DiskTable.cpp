// The disks of the machine, and what happens to them.

#include <algorithm>
#include <filesystem>

#include "macos/fake/DiskArbitration.h"

namespace fake {

namespace {

using Kind = Registration::Kind;

DiskEntry &existing(const std::string &name) {
  if (DiskEntry *entry = entryOf(name)) return *entry;
  report("The test speaks of a disk that is not there: " + name);
  static DiskEntry none;
  return none;
}

/// Null when there is none, or one of another type.
template <class T>
const T *valueAt(const DiskEntry &entry, const std::string &key) {
  const auto place = entry.description.find(key);
  return place == entry.description.end() ? nullptr : std::get_if<T>(&place->second);
}

void removeFolder(const DiskEntry &entry) {
  std::error_code isInUse;
  const auto *const path = valueAt<Path>(entry, "DAVolumePath");
  if (entry.hasMadeFolder && path != nullptr) std::filesystem::remove(path->text, isInUse);
}

/// The unit is the number behind "disk".
void addNames(Dictionary &description, const std::string &name) {
  description.try_emplace("DAMediaBSDName", name);
  if (!name.starts_with("disk")) return;
  description.try_emplace("DAMediaBSDUnit", std::int64_t{std::atoi(name.c_str() + 4)});
}

}  // namespace

DiskEntry *entryOf(const std::string &name) {
  auto &disks = world().disks;
  const auto place = std::find_if(disks.begin(), disks.end(),
                                  [&name](const DiskEntry &each) { return each.name == name; });
  return place == disks.end() ? nullptr : &*place;
}

void putAt(DiskEntry &entry, const std::string &path) {
  std::error_code notHere;
  entry.hasMadeFolder = std::filesystem::create_directory(path, notHere);
  entry.description["DAVolumePath"] = Path{path};
  announce(Kind::Changed, entry, {"DAVolumePath"});
}

void takeAway(DiskEntry &entry) {
  if (!entry.description.contains("DAMediaBSDName")) {
    Machine::current().pull(std::string(entry.name));
    return;
  }
  removeFolder(entry);
  entry.description.erase("DAVolumePath");
  announce(Kind::Changed, entry, {"DAVolumePath"});
}

std::string freeFolder(const DiskEntry &entry) {
  const auto *const label = valueAt<std::string>(entry, "DAVolumeName");
  std::string name = label == nullptr ? "Untitled" : *label;
  std::replace(name.begin(), name.end(), '/', ':');
  const std::string base = Machine::current().volumesFolder + "/" + name;
  std::string path = base;
  for (int number = 1; std::filesystem::exists(path); ++number) {
    path = base + " " + std::to_string(number);
  }
  return path;
}

void Machine::plug(const std::string &name, Dictionary description, Listing listing) {
  addNames(description, name);
  world().disks.push_back({name, std::move(description), listing});
  announce(Kind::Appeared, world().disks.back());
}

void Machine::plugVolumeWithoutMedia(const std::string &path) {
  world().disks.push_back({path, {{"DAVolumePath", Path{path}}}, Listing::Absent});
  announce(Kind::Appeared, world().disks.back());
}

void Machine::pull(const std::string &name) {
  removeFolder(existing(name));
  announce(Kind::Disappeared, existing(name));
  std::erase_if(world().disks, [&name](const DiskEntry &each) { return each.name == name; });
}

void Machine::mount(const std::string &name, const std::string &path) {
  putAt(existing(name), path);
}

void Machine::unmount(const std::string &name) {
  if (mountPoint(name).has_value()) takeAway(existing(name));
}

void Machine::rename(const std::string &name, const std::string &volumeName,
                     const std::optional<std::string> &path) {
  DiskEntry &entry = existing(name);
  entry.description["DAVolumeName"] = volumeName;
  std::set<std::string> changed = {"DAVolumeName"};
  if (path.has_value()) {
    entry.description["DAVolumePath"] = Path{*path};
    changed.insert("DAVolumePath");
  }
  announce(Kind::Changed, entry, changed);
}

Answer &Machine::onMount(const std::string &name) {
  return existing(name).onMount;
}
Answer &Machine::onUnmount(const std::string &name) {
  return existing(name).onUnmount;
}

std::optional<std::string> Machine::mountPoint(const std::string &name) const {
  const DiskEntry *const entry = entryOf(name);
  const auto *const path = entry == nullptr ? nullptr : valueAt<Path>(*entry, "DAVolumePath");
  return path == nullptr ? std::nullopt : std::optional(path->text);
}

}  // namespace fake
