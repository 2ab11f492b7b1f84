#include "Foundation/Text.h"

#include <limits>

QString printed(const OptionalText &text) {
  return text.value_or(QStringLiteral("(null)"));
}

bool areEqualTexts(const OptionalText &left, const OptionalText &right) {
  return left.has_value() && right.has_value() && *left == *right;
}

qint32 leadingInteger(const QString &text) {
  constexpr qint64 kLimit = std::numeric_limits<qint32>::max();
  auto character = text.cbegin();
  while (character != text.cend() && character->isSpace()) ++character;
  const bool negative = character != text.cend() && *character == u'-';
  if (negative || (character != text.cend() && *character == u'+')) ++character;
  qint64 value = 0;
  for (; character != text.cend() && *character >= u'0' && *character <= u'9'; ++character) {
    value = qMin(value * 10 + (character->unicode() - u'0'), kLimit + 1);
  }
  return static_cast<qint32>(negative ? -value : qMin(value, kLimit));
}

QString lastPathComponent(const QString &path) {
  if (path == QLatin1StringView("N/A")) return path;
  qsizetype end = path.size();
  while (end > 1 && path[end - 1] == u'/') --end;
  if (end == 1 && path[0] == u'/') return QStringLiteral("/");
  return path.sliced(0, end).section(u'/', -1);
}

bool isHarmless(char32_t character) {
  constexpr char32_t kZeroWidthNonJoiner = 0x200C;
  constexpr char32_t kZeroWidthJoiner = 0x200D;
  // Qt's rich text marks frames and pictures with these.
  if (QChar::isNonCharacter(character) || character == QChar::ObjectReplacementCharacter)
    return false;
  switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return false;
    case QChar::Other_Format:
      // Marks of direction are harmful, but some scripts join letters by these two.
      return character == kZeroWidthNonJoiner || character == kZeroWidthJoiner;
    default:
      return true;
  }
}
