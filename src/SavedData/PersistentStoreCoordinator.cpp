#include "SavedData/PersistentStoreCoordinator.h"

#include <QFile>
#include <QXmlStreamReader>
#include <cerrno>

#include "Foundation/PlainFile.h"
#include "SavedData/ManagedObjectModel.h"

using namespace Qt::StringLiterals;

namespace {

// Far more than a user's notes need.
constexpr qint64 kLargestStore = 1024 * 1024;

Error notWritten(const QString &reason) {
  return {kCocoaErrorDomain, kFileWriteUnknown,
          u"The saved data could not be written: %1"_s.arg(reason)};
}

/// Unknown elements are errors: a save would lose them.
ManagedObjects readObjects(QXmlStreamReader &xml, const ManagedObjectModel &model) {
  ManagedObjects objects;
  const auto expect = [&xml](QLatin1StringView name, bool isSound) {
    if (xml.name() != name || !isSound)
      xml.raiseError(u"This <%1> does not belong here"_s.arg(xml.name()));
  };
  if (xml.readNextStartElement()) expect("store"_L1, true);
  while (xml.readNextStartElement()) {
    const auto id = ObjectID::fromString(xml.attributes().value("id"_L1));
    ManagedObject object{xml.attributes().value("entity"_L1).toString(), {}};
    expect("object"_L1, !id.isNull() && !objects.contains(id) && model.hasEntity(object.entity));
    while (xml.readNextStartElement()) {
      const QString name = xml.attributes().value("name"_L1).toString();
      expect("attribute"_L1, model.hasAttribute(object.entity, name));
      object.values.insert(name, xml.attributes().value("value"_L1).toString());
      xml.skipCurrentElement();
    }
    objects.insert(id, object);
  }
  // Reports anything after the last tag as an error.
  while (!xml.atEnd()) xml.readNext();
  return objects;
}

void writeObjects(QXmlStreamWriter &xml, const ManagedObjects &objects) {
  xml.setAutoFormatting(true);
  xml.writeStartDocument();
  xml.writeStartElement(u"store"_s);
  for (auto object = objects.begin(); object != objects.end(); ++object) {
    xml.writeStartElement(u"object"_s);
    xml.writeAttribute(u"entity"_s, object->entity);
    xml.writeAttribute(u"id"_s, object.key().toString());
    const auto &values = object->values;
    for (auto value = values.begin(); value != values.end(); ++value) {
      xml.writeEmptyElement(u"attribute"_s);
      xml.writeAttribute(u"name"_s, value.key());
      xml.writeAttribute(u"value"_s, value.value());
    }
    xml.writeEndElement();
  }
  xml.writeEndDocument();
}

}  // namespace

std::optional<Error> PersistentStoreCoordinator::addXMLStore(const QString &path) {
  const auto content = readPlainFile(QFile::encodeName(path), kLargestStore);
  const auto *problem = std::get_if<Error>(&content);
  if (problem != nullptr && problem->code != ENOENT) return *problem;
  if (problem == nullptr) {
    QXmlStreamReader xml(std::get<QByteArray>(content));
    const ManagedObjects objects = readObjects(xml, _model);
    if (xml.hasError()) {
      const QString place = u"%1 (line %2)"_s.arg(xml.errorString()).arg(xml.lineNumber());
      return Error{kCocoaErrorDomain, kFileReadCorruptFile,
                   u"The saved data could not be read: %1"_s.arg(place)};
    }
    _objects = objects;
  }
  _path = path;
  return std::nullopt;
}

std::optional<Error> PersistentStoreCoordinator::save(const ManagedObjects &objects) {
  QByteArray bytes;
  QXmlStreamWriter xml(&bytes);
  writeObjects(xml, objects);
  if (xml.hasError()) return notWritten(u"A text has characters that cannot be kept"_s);
  if (bytes.size() > kLargestStore) return notWritten(u"It is too much"_s);
  if (const auto error = PlainFileWriter(_path).write(bytes))
    return notWritten(error->localizedDescription);
  _objects = objects;
  return std::nullopt;
}
