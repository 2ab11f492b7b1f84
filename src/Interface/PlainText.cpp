#include "Interface/PlainText.h"

#include <QStringList>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

bool isHarmless(char32_t character) {
  constexpr char32_t kZeroWidthNonJoiner = 0x200C;
  constexpr char32_t kZeroWidthJoiner = 0x200D;
  switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return false;
    case QChar::Other_Format:  // marks of direction among them; but letters of some scripts join by
                               // these
      return character == kZeroWidthNonJoiner || character == kZeroWidthJoiner;
    default:
      return true;
  }
}

}  // namespace

QString printable(const QString &text) {
  QString result;
  result.reserve(text.size());
  for (const char32_t character : text.toUcs4()) {
    const char32_t shown =
        isHarmless(character) ? character : char32_t{QChar::ReplacementCharacter};
    result += QString::fromUcs4(&shown, 1);
  }
  return result;
}

void showPlainToolTip(QWidget *widget, const QPoint &globalPosition, const QString &text) {
  QStringList lines = text.split(u'\n', Qt::SkipEmptyParts);
  for (QString &line : lines) line = printable(line).toHtmlEscaped();
  // An empty text would hide the tooltip; a mark-up around it keeps Qt from guessing at what is
  // within.
  if (lines.isEmpty()) {
    QToolTip::hideText();
    return;
  }
  QToolTip::showText(globalPosition, u"<p dir='ltr'>"_s + lines.join(u"<br>"_s) + u"</p>"_s,
                     widget);
}
