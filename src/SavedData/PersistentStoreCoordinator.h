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

  /// Reads the file; where there is none, the store is empty and the first save makes it. When it
  /// cannot be read, or holds anything else than the above, the file stays as it is, and the
  /// coordinator without a store. Blocks.
  std::optional<Error> addXMLStore(const QString &path);

  const ManagedObjectModel &model() const { return _model; }

  /// What the store holds.
  const ManagedObjects &objects() const { return _objects; }

  /// Puts these in the place of what the store holds. On the disk are the ones or the others at any
  /// moment, whatever happens meanwhile. Texts with characters that XML does not know, such as
  /// escapes, are refused. Blocks until they are there.
  std::optional<Error> save(const ManagedObjects &objects);

 private:
  const ManagedObjectModel &_model;
  QString _path;
  ManagedObjects _objects;
};
