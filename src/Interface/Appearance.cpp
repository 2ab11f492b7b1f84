#include "Interface/Appearance.h"

#include <QApplication>

#include "Interface/Look.h"
#include "Platform/common/DarkPalette.h"

namespace {

// Qt derives the intermediate shades from the colours of buttons and windows.
QPalette paletteOf(bool dark) {
  const QColor window = dark ? QColor(0x2b2b2e) : QColor(0xefefef);
  const QColor text = dark ? QColor(0xf2f2f2) : QColor(0x1a1a1a);
  QPalette palette(window, window);
  const QColor base = dark ? QColor(0x1f1f21) : QColor(Qt::white);
  palette.setColor(QPalette::Base, base);
  palette.setColor(QPalette::AlternateBase, dark ? QColor(0x252528) : QColor(0xf6f6f6));
  palette.setColor(QPalette::ToolTipBase, dark ? QColor(0x3a3a3d) : QColor(0xffffdc));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::ToolTipText, QPalette::PlaceholderText}) {
    palette.setColor(role, text);
  }
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(0x8c8c8c));
  }
  return palette;
}

}  // namespace

void setDarkAppearance(bool dark, const std::optional<QColor> &accent) {
  const QPalette present = QApplication::palette();
  QPalette palette = dark == hasDarkWindows(present) ? present : paletteOf(dark);
  // The accent is the desktop's, in a shade on which selected text can be read.
  const QColor selected = present.color(QPalette::HighlightedText);
  palette.setColor(QPalette::HighlightedText, selected);
  palette.setColor(QPalette::Highlight,
                   readableOn(selected, accent.value_or(present.color(QPalette::Highlight))));
  QApplication::setPalette(palette);
}
