#include "SavedData/ManagedObjectModel.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

ManagedObjectModel::ManagedObjectModel(const QString &fileName) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) return;
  const QJsonObject entities = QJsonDocument::fromJson(file.readAll()).object();
  for (auto entity = entities.begin(); entity != entities.end(); ++entity) {
    _attributes.insert(entity.key(), entity->toVariant().toStringList());
  }
}
