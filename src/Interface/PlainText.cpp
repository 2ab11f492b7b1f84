#include "Interface/PlainText.h"

#include <QFontMetrics>
#include <QRegularExpression>
#include <QStringList>
#include <QToolTip>

#include "Foundation/Text.h"

using namespace Qt::StringLiterals;

namespace {

// Longer than any real path.
constexpr qsizetype kMostPainted = 2000;

/// A tooltip is as wide as its longest word, and a name without blanks is one word: allows breaks
/// in it.
QString breakable(QString text) {
  static const QRegularExpression kLongWord(u"(\\S{60})(?=\\S)"_s);
  return text.replace(kLongWord, u"\\1\u200B"_s);
}

}  // namespace

QString printable(const QString &text) {
  if (text.size() > kMostPainted) {
    return printable(text.first(kMostPainted / 2 - 1) + u'\u2026' + text.last(kMostPainted / 2));
  }
  QString result;
  result.reserve(text.size());
  for (const char32_t character : text.toUcs4()) {
    result +=
        QChar::fromUcs4(isHarmless(character) ? character : char32_t{QChar::ReplacementCharacter});
  }
  return result;
}

bool fits(const QString &text, const QFontMetrics &metrics, int width) {
  return text.size() <= kMostPainted && metrics.horizontalAdvance(printable(text)) <= width;
}

QString withoutMarkup(const QString &text) {
  return printable(text).replace(u'<', u'\u2039').replace(u'>', u'\u203A').replace(u'&', u'\uFF06');
}

void showPlainToolTip(QWidget *widget, const QPoint &globalPosition, const QStringList &lines) {
  QStringList shown;
  for (const QString &line : lines) {
    if (!line.isEmpty()) shown += breakable(printable(line)).toHtmlEscaped();
  }
  if (shown.isEmpty()) {
    QToolTip::hideText();
    return;
  }
  // Qt does not guess the text's format when the text is inside mark-up.
  QToolTip::showText(globalPosition, u"<p dir='ltr'>"_s + shown.join(u"<br>"_s) + u"</p>"_s,
                     widget);
}
