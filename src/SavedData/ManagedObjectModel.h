#pragma once

// Which kinds of objects (entities) exist, and the attributes of each. All values are texts. A model
// file is a JSON object with the names of each entity's attributes:
//
//   { "Partition": ["uuid", "note"] }

#include <QHash>
#include <QStringList>

class ManagedObjectModel {
 public:
  /// Reads a file that ships with the program. Entries that cannot be parsed are left out.
  explicit ManagedObjectModel(const QString &fileName);

  bool hasEntity(const QString &entity) const { return _attributes.contains(entity); }
  bool hasAttribute(const QString &entity, const QString &attribute) const {
    return _attributes.value(entity).contains(attribute);
  }

 private:
  QHash<QString, QStringList> _attributes;  // by entity
};
