#pragma once

// Which kinds of objects there can be, and what can be known of each: texts, all of them. A model file
// is a JSON object with the names of each entity's attributes:
//
//   { "Partition": ["uuid", "note"] }

#include <QHash>
#include <QStringList>

class ManagedObjectModel {
 public:
  /// Reads a file that ships with the program. What cannot be made out is not in the model.
  explicit ManagedObjectModel(const QString &fileName);

  bool hasEntity(const QString &entity) const { return _attributes.contains(entity); }
  bool hasAttribute(const QString &entity, const QString &attribute) const {
    return _attributes.value(entity).contains(attribute);
  }

 private:
  QHash<QString, QStringList> _attributes;  // by entity
};
