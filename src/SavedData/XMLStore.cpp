#include "SavedData/XMLStore.h"

#include <QXmlStreamReader>
#include <algorithm>

#include "SavedData/ManagedObjectModel.h"

using namespace Qt::StringLiterals;

namespace {

// The parser's time for one tag grows with the square of its attributes.
constexpr qsizetype kLongestTag = 64 * 1024;

/// No tag holds a "<" except as its first character.
bool hasOverlongTag(QStringView text) {
  const QList<QStringView> pieces = text.split(u'<');
  return std::any_of(pieces.begin(), pieces.end(),
                     [](QStringView piece) { return piece.size() > kLongestTag; });
}

class Reader {
 public:
  Reader(const QString &text, const ManagedObjectModel &model) : _xml(text), _model(model) {}

  std::variant<ManagedObjects, QString> read() {
    if (enter("store"_L1, 0)) {
      while (enter("object"_L1, 2)) readObject();
    }
    // What follows the last tag must be nothing.
    while (!_xml.atEnd()) _xml.readNext();
    if (!_xml.hasError()) return _objects;
    return u"%1 (line %2)"_s.arg(_xml.errorString()).arg(_xml.lineNumber());
  }

 private:
  /// Goes on to the next tag. YES when it opens an element, which must have this name and as many
  /// attributes; NO when it closes the one around it, or after an error.
  bool enter(QLatin1StringView name, qsizetype attributes) {
    while (!_xml.atEnd()) {
      switch (_xml.readNext()) {
        case QXmlStreamReader::StartElement:
          if (_xml.name() == name && _xml.attributes().size() == attributes) return true;
          _xml.raiseError(u"This <%1> does not belong here"_s.arg(_xml.name()));
          return false;
        case QXmlStreamReader::EndElement:
          return false;
        case QXmlStreamReader::Characters:
          if (!_xml.isWhitespace()) _xml.raiseError(u"There is text between the elements"_s);
          break;
        default:
          break;
      }
    }
    return false;
  }

  QString attribute(QLatin1StringView name) const {
    return _xml.attributes().value(name).toString();
  }

  void readObject() {
    const ObjectID id = ObjectID::fromString(attribute("id"_L1));
    if (id.isNull() || _objects.contains(id)) _xml.raiseError(u"An object has no id of its own"_s);
    ManagedObject object{attribute("entity"_L1), {}};
    if (!_model.hasEntity(object.entity)) {
      _xml.raiseError(u"There is no entity \"%1\""_s.arg(object.entity));
    }
    while (enter("attribute"_L1, 2)) readAttribute(object);
    _objects.insert(id, object);
  }

  void readAttribute(ManagedObject &object) {
    const QString name = attribute("name"_L1);
    if (!_xml.attributes().hasAttribute("value"_L1) || object.values.contains(name) ||
        !_model.hasAttribute(object.entity, name)) {
      _xml.raiseError(u"An object cannot have the attribute \"%1\""_s.arg(name));
    }
    object.values.insert(name, attribute("value"_L1));
    if (_xml.readNext() != QXmlStreamReader::EndElement) {
      _xml.raiseError(u"An <attribute> is not empty"_s);
    }
  }

  QXmlStreamReader _xml;
  const ManagedObjectModel &_model;
  ManagedObjects _objects;
};

}  // namespace

QByteArray xmlFromObjects(const ManagedObjects &objects) {
  QByteArray bytes;
  QXmlStreamWriter xml(&bytes);
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
  return bytes;
}

std::variant<ManagedObjects, QString> objectsFromXML(const QByteArray &xml,
                                                     const ManagedObjectModel &model) {
  // Decoded first, because the parser would believe what the file says of its encoding, and nothing
  // could be looked for in it before.
  const QString text = QString::fromUtf8(xml);
  if (text.contains("<!DOCTYPE"_L1)) return u"A document type is not allowed"_s;
  if (hasOverlongTag(text)) return u"A tag or a text is too long"_s;
  return Reader(text, model).read();
}
