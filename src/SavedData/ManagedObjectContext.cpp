#include "SavedData/ManagedObjectContext.h"

#include <algorithm>
#include <functional>

#include "SavedData/ManagedObjectModel.h"
#include "SavedData/PersistentStoreCoordinator.h"

namespace {

class Change : public QUndoCommand {
 public:
  Change(ManagedObjects &objects, const ManagedObjects &after)
      : _objects(objects), _before(objects), _after(after) {}

  void undo() override { _objects = _before; }
  void redo() override { _objects = _after; }

 private:
  ManagedObjects &_objects;
  ManagedObjects _before;
  ManagedObjects _after;
};

}  // namespace

ManagedObjectContext::ManagedObjectContext(PersistentStoreCoordinator &coordinator)
    : _coordinator(coordinator), _objects(coordinator.objects()) {}

void ManagedObjectContext::change(const ManagedObjects &after) {
  _undoManager.push(new Change(_objects, after));
}

std::optional<ObjectID> ManagedObjectContext::insertObject(const QString &entity) {
  if (!_coordinator.model().hasEntity(entity)) return std::nullopt;
  const ObjectID id = ObjectID::createUuid();
  ManagedObjects after = _objects;
  after.insert(id, {entity, {}});
  change(after);
  return id;
}

bool ManagedObjectContext::setValue(const ObjectID &id, const QString &attribute,
                                    const QString &value) {
  // For an unknown id, `value` gives an object whose entity has no attributes.
  if (!_coordinator.model().hasAttribute(_objects.value(id).entity, attribute)) return false;
  ManagedObjects after = _objects;
  after[id].values.insert(attribute, value);
  change(after);
  return true;
}

bool ManagedObjectContext::deleteObject(const ObjectID &id) {
  ManagedObjects after = _objects;
  if (after.remove(id) == 0) return false;
  change(after);
  return true;
}

bool ManagedObjectContext::hasChanges() const {
  return _objects != _coordinator.objects();
}

std::optional<Error> ManagedObjectContext::save() {
  return _coordinator.save(_objects);
}

bool ManagedObjectContext::commitEditing() {
  return std::all_of(_editors.begin(), _editors.end(), std::mem_fn(&Editor::commitEditing));
}
