#include "Query/Answers.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "Foundation/Text.h"
#include "Query/Operations.h"

using namespace Qt::StringLiterals;

namespace {

/// JSON leaves most characters as they are. Outside of its quotes all characters are harmless.
QString escaped(const QString &json) {
  QString result;
  for (qsizetype index = 0; index < json.size(); ++index) {
    const bool isPair = json[index].isHighSurrogate() && index + 1 < json.size();
    const char32_t character = isPair ? QChar::surrogateToUcs4(json[index], json[index + 1])
                                      : char32_t{json[index].unicode()};
    const QStringView units = QStringView(json).sliced(index, isPair ? 2 : 1);
    for (const QChar unit : units) {
      result += isHarmless(character) ? QString(unit)
                                      : u"\\u%1"_s.arg(uint{unit.unicode()}, 4, 16, QChar(u'0'));
    }
    index += units.size() - 1;
  }
  return result;
}

bool isSentinel(const Operation &operation, const QJsonValue &answer) {
  return answer.isString() && operation.sentinels.contains(answer.toString());
}

QString plain(const QJsonValue &value) {
  if (value.isNull()) return u"absent"_s;
  if (value.isBool()) return value.toBool() ? u"YES"_s : u"NO"_s;
  if (value.isDouble()) return QString::number(value.toInteger());
  if (value.isString()) return quoted(value.toString());
  const QByteArray json = QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact);
  return escaped(QString::fromUtf8(json));
}

}  // namespace

QString quoted(const QString &text) {
  const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
  return escaped(QString::fromUtf8(list.sliced(1, list.size() - 2)));
}

QString plainAnswer(const Operation &operation, const QJsonValue &answer) {
  QStringList lines;
  if (answer.isArray()) {
    for (const QJsonValue each : answer.toArray()) lines += plain(each);
    if (lines.isEmpty()) lines += u"an empty list"_s;
  } else if (answer.isObject()) {
    const QJsonObject object = answer.toObject();
    for (const QString &key : object.keys()) lines += key + ": "_L1 + plain(object[key]);
    if (lines.isEmpty()) lines += u"an empty description"_s;
  } else {
    lines += plain(answer) + (isSentinel(operation, answer) ? u" (a sentinel)"_s : QString());
  }
  return lines.join(u'\n') + u'\n';
}

QString jsonAnswer(const Operation &operation, const QString &argument, const QJsonValue &answer) {
  QJsonObject object = {{u"operation"_s, operation.name},
                        {u"answer"_s, answer},
                        {u"sentinel"_s, isSentinel(operation, answer)}};
  if (operation.takes != Operation::Takes::Nothing) object[u"argument"_s] = argument;
  const QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Compact);
  return escaped(QString::fromUtf8(json)) + u'\n';
}
