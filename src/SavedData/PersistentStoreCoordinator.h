#pragma once

// Stands between the contexts and the file that holds their objects:
//
//   <store>
//     <object entity="Partition" id="{0e2f0b4c-1111-4c4c-8d8d-121212121212}">
//       <attribute name="note" value="Windows is on this one"/>
//     </object>
//   </store>

#include <optional>

#include "Foundation/Error.h"
#include "SavedData/ManagedObject.h"

class ManagedObjectModel;

class PersistentStoreCoordinator {
 public:
  /// The model must outlive the coordinator.
  explicit PersistentStoreCoordinator(const ManagedObjectModel &model) : _model(model) {}

  /// Reads the file. Where there is none, the store is empty and the first save creates the file.
  /// When the file cannot be read, or has any other content than the above, the file is not changed
  /// and the coordinator has no store. Blocks.
  std::optional<Error> addXMLStore(const QString &path);

  const ManagedObjectModel &model() const { return _model; }

  /// What the store holds.
  const ManagedObjects &objects() const { return _objects; }

  /// Replaces what the store holds. At any moment the disk has all the old or all the new objects,
  /// even after a crash. Texts with characters that XML does not allow, such as escapes, are
  /// refused. Blocks until the objects are on the disk.
  std::optional<Error> save(const ManagedObjects &objects);

 private:
  const ManagedObjectModel &_model;
  QString _path;
  ManagedObjects _objects;
};
