#pragma once

#include <QMap>
#include <QString>
#include <QUuid>

using ObjectID = QUuid;

/// One object of the store: its entity and its values. A value type, not tied to the store or to a
/// context.
struct ManagedObject {
  QString entity;
  QMap<QString, QString> values;  // by attribute; an attribute without a value is left out

  bool operator==(const ManagedObject &) const = default;
};

using ManagedObjects = QMap<ObjectID, ManagedObject>;
