#pragma once

// Changes the store's objects. Only `save` writes the changes. Each change can be undone.
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

/// A widget, such as a text field, that edits a value before the object gets the result.
class Editor {
 public:
  virtual ~Editor() = default;

  /// Gives the edited value to the object. False when that is not possible, for example when the
  /// input is not valid.
  virtual bool commitEditing() = 0;
};

class ManagedObjectContext {
 public:
  /// The coordinator must have a store and outlive the context.
  explicit ManagedObjectContext(PersistentStoreCoordinator &coordinator);

  const ManagedObjects &objects() const { return _objects; }

  // Changes. For an unknown entity, object or attribute nothing is changed, and the result is absent
  // or false.
  std::optional<ObjectID> insertObject(const QString &entity);
  bool setValue(const ObjectID &id, const QString &attribute, const QString &value);
  bool deleteObject(const ObjectID &id);

  /// Whether there is anything to save.
  bool hasChanges() const;
  /// On failure the changes are kept and the store is unchanged. Blocks.
  std::optional<Error> save();

  // Editors are not owned. An editor that is destroyed while editing reports the end first, but must
  // not do so while it commits.
  void objectDidBeginEditing(Editor *editor) { _editors.append(editor); }
  void objectDidEndEditing(Editor *editor) { _editors.removeAll(editor); }
  /// Asks each editor to commit. False as soon as one refuses.
  bool commitEditing();

  /// Undoes and redoes changes. A save is not undone: an undo after a save is a new change.
  QUndoStack &undoManager() { return _undoManager; }

 private:
  void change(const ManagedObjects &after);

  PersistentStoreCoordinator &_coordinator;
  ManagedObjects _objects;
  QList<Editor *> _editors;
  QUndoStack _undoManager;
};
