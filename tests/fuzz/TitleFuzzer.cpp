// The painted and printed forms of button titles, which contain the names of volumes.

#include <QList>
#include <algorithm>

#include "Foundation/Text.h"
#include "Interface/PlainText.h"
#include "Query/Answers.h"
#include "fuzz/Fuzzer.h"

void fuzz(const QByteArray &bytes) {
  const auto isHarmlessText = [](const QString &text) {
    const QList<uint> characters = text.toUcs4();
    return std::all_of(characters.begin(), characters.end(), isHarmless);
  };
  const QString title = QStringLiteral("open /") + QString::fromUtf8(bytes);
  mustHold(isHarmlessText(printable(title)) && isHarmlessText(quoted(title)));
  const QString bare = withoutMarkup(title);
  mustHold(isHarmlessText(bare) && !bare.contains(u'<') && !bare.contains(u'&'));
  lastPathComponent(title);
  leadingInteger(title);
}
