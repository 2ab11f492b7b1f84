#include "SavedData/ManagedObjectContext.h"

#include <utility>

#include "SavedData/ManagedObjectModel.h"
#include "SavedData/PersistentStoreCoordinator.h"

/// One object's coming, changing or going: it is absent before it came and after it has gone.
class ManagedObjectContext::Change : public QUndoCommand {
 public:
  Change(ManagedObjects &objects, const ObjectID &id, std::optional<ManagedObject> after)
      : _objects(objects), _id(id), _after(std::move(after)) {
    if (objects.contains(id)) _before = objects.value(id);
  }

  void undo() override { put(_before); }
  void redo() override { put(_after); }

 private:
  void put(const std::optional<ManagedObject> &object) {
    if (object) {
      _objects.insert(_id, *object);
    } else {
      _objects.remove(_id);
    }
  }

  ManagedObjects &_objects;
  ObjectID _id;
  std::optional<ManagedObject> _before;
  std::optional<ManagedObject> _after;
};

ManagedObjectContext::ManagedObjectContext(PersistentStoreCoordinator &coordinator)
    : _coordinator(coordinator), _objects(coordinator.objects()) {}

std::optional<ObjectID> ManagedObjectContext::insertObject(const QString &entity) {
  if (!_coordinator.model().hasEntity(entity)) return std::nullopt;
  const ObjectID id = ObjectID::createUuid();
  _undoManager.push(new Change(_objects, id, ManagedObject{entity, {}}));
  return id;
}

bool ManagedObjectContext::setValue(const ObjectID &id, const QString &attribute,
                                    const std::optional<QString> &value) {
  const auto found = _objects.constFind(id);
  if (found == _objects.constEnd()) return false;
  if (!_coordinator.model().hasAttribute(found->entity, attribute)) return false;
  ManagedObject changed = *found;
  if (value.has_value()) {
    changed.values.insert(attribute, *value);
  } else {
    changed.values.remove(attribute);
  }
  _undoManager.push(new Change(_objects, id, changed));
  return true;
}

bool ManagedObjectContext::deleteObject(const ObjectID &id) {
  if (!_objects.contains(id)) return false;
  _undoManager.push(new Change(_objects, id, std::nullopt));
  return true;
}

bool ManagedObjectContext::hasChanges() const {
  return _objects != _coordinator.objects();
}

std::optional<Error> ManagedObjectContext::save() {
  return _coordinator.save(_objects);
}

bool ManagedObjectContext::commitEditing() {
  // An editor that has committed may take its leave at once.
  const QList<Editor *> editors = _editors;
  for (Editor *editor : editors) {
    if (_editors.contains(editor) && !editor->commitEditing()) return false;
  }
  return true;
}
