#pragma once

// Where the store's objects are changed. What is changed is saved by `save` and by nothing else, and can be
// undone one by one.
//
//   const auto note = context.insertObject(u"Partition"_s);
//   context.setValue(*note, u"note"_s, u"Windows is on this one"_s);
//   if (const auto error = context.save()) ...
//
// For the main thread only.

#include <QList>
#include <QUndoStack>
#include <optional>

#include "Foundation/Error.h"
#include "SavedData/ManagedObject.h"

class PersistentStoreCoordinator;

/// Something that a person edits a value in before the object gets it, a text field for example.
class Editor {
 public:
  virtual ~Editor() = default;

  /// Gives the object what has been edited so far. False when that is not possible: the person may
  /// have typed what cannot be.
  virtual bool commitEditing() = 0;
};

class ManagedObjectContext {
 public:
  /// The coordinator must have a store and outlive the context.
  explicit ManagedObjectContext(PersistentStoreCoordinator &coordinator);

  const ManagedObjects &objects() const { return _objects; }

  // Changes. Absent or false, and nothing is changed, for an entity, an object or an attribute that is
  // not there.
  std::optional<ObjectID> insertObject(const QString &entity);
  bool setValue(const ObjectID &id, const QString &attribute, const QString &value);
  bool deleteObject(const ObjectID &id);

  /// Whether there is anything to save.
  bool hasChanges() const;
  /// When it fails, the changes are still there, and the store is as it was. Blocks.
  std::optional<Error> save();

  // Editors are not owned. One that ends while it is editing says so before, but not while it commits.
  void objectDidBeginEditing(Editor *editor) { _editors.append(editor); }
  void objectDidEndEditing(Editor *editor) { _editors.removeAll(editor); }
  /// Asks each editor to commit. False as soon as one refuses.
  bool commitEditing();

  /// Undoes and repeats the changes. Saving is not undone: what is undone after it is a change.
  QUndoStack &undoManager() { return _undoManager; }

 private:
  void change(const ManagedObjects &after);

  PersistentStoreCoordinator &_coordinator;
  ManagedObjects _objects;
  QList<Editor *> _editors;
  QUndoStack _undoManager;
};
