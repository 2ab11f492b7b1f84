#include "Foundation/SystemLog.h"

#include <syslog.h>

#include <QDebug>

namespace {

QString onOneLine(const QString &text) {
  QString line;
  line.reserve(text.size());
  for (const QChar character : text) {
    if (character.isPrint() || character.isSurrogate()) {
      line += character;
    } else {
      line += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
    }
  }
  return line;
}

}  // namespace

void systemLog(const QString &text) {
  const QString line = onOneLine(text);
  syslog(LOG_USER | LOG_WARNING, "keldra: %s", line.toUtf8().constData());
  qWarning().noquote() << line;
}
