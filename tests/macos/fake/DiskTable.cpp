// The disks of the machine, and what happens to them.

#include <filesystem>
#include <stdexcept>

#include "macos/fake/World.h"

using namespace fake;

namespace {

DiskEntry &existing(const std::string &name) {
  if (DiskEntry *entry = entryOf(name)) return *entry;
  throw std::invalid_argument("The test speaks of a disk that is not there: " + name);
}

}  // namespace

DiskEntry *fake::entryOf(const std::string &name) {
  for (DiskEntry &each : world().disks) {
    if (each.name == name) return &each;
  }
  return nullptr;
}

void Machine::plug(const std::string &name, Dictionary description, Listing listing) {
  if (!name.starts_with('/')) description.try_emplace("DAMediaBSDName", name);
  world().disks.push_back({name, std::move(description), listing});
  announce({"appeared"}, world().disks.back());
}

void Machine::plugVolumeWithoutMedia(const std::string &path) {
  plug(path, {{"DAVolumePath", Path{path}}}, Listing::Absent);
}

void Machine::pull(const std::string &name) {
  announce({"disappeared"}, existing(name));
  std::erase_if(world().disks, [&name](const DiskEntry &each) { return each.name == name; });
}

void Machine::mount(const std::string &name, const std::string &path) {
  std::error_code notHere;
  std::filesystem::create_directory(path, notHere);
  existing(name).description["DAVolumePath"] = Path{path};
  announce({"DAVolumePath"}, existing(name));
}

void Machine::unmount(const std::string &name) {
  existing(name).description.erase("DAVolumePath");
  announce({"DAVolumePath"}, existing(name));
}

void Machine::rename(const std::string &name, const std::string &volumeName,
                     const std::optional<std::string> &path) {
  DiskEntry &entry = existing(name);
  entry.description["DAVolumeName"] = volumeName;
  if (path.has_value()) entry.description["DAVolumePath"] = Path{*path};
  announce({"DAVolumeName", path.has_value() ? "DAVolumePath" : ""}, entry);
}

Answer &Machine::onMount(const std::string &name) {
  return existing(name).onMount;
}
Answer &Machine::onUnmount(const std::string &name) {
  return existing(name).onUnmount;
}

std::optional<std::string> Machine::mountPoint(const std::string &name) const {
  const DiskEntry *const entry = entryOf(name);
  if (entry == nullptr || !entry->description.contains("DAVolumePath")) return std::nullopt;
  return std::get<Path>(entry->description.at("DAVolumePath")).text;
}
