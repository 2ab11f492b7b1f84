#include "Foundation/SystemLog.h"

#include <syslog.h>

#include <QDebug>

#include "Foundation/Text.h"

namespace {

QString onOneLine(const QString &text) {
  QString line;
  line.reserve(text.size());
  for (const char32_t character : text.toUcs4()) {
    if (isHarmless(character)) {
      line += QChar::fromUcs4(character);
    } else {
      line += QStringLiteral("\\u%1").arg(uint{character}, 4, 16, QLatin1Char('0'));
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
