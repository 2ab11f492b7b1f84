#pragma once

#include <QMap>
#include <QString>
#include <QUuid>

using ObjectID = QUuid;

/// One object of the store: of which kind it is, and what is known of it. A value, without ties to the
/// store or to a context.
struct ManagedObject {
  QString entity;
  QMap<QString, QString> values;  // by attribute; an attribute without a value is left out

  bool operator==(const ManagedObject &) const = default;
};

using ManagedObjects = QMap<ObjectID, ManagedObject>;
