#pragma once

// Colours and sizes, all derived from the desktop's palette and font, in light and dark. One is
// cheap to make: make it where it is needed, so that a change of theme or font shows at the next
// painting.

#include <QColor>
#include <QFont>
#include <QPalette>

class QWidget;

class Look {
 public:
  explicit Look(const QWidget *widget);
  Look(const QPalette &palette, const QFont &font);

  bool isDark() const { return _dark; }

  QColor ground() const { return _ground; }  // of the popover
  QColor text() const;
  QColor dimText() const;  // second lines
  QColor disabledText() const;
  QColor hairline() const;   // between rows
  QColor border() const;     // of buttons and of the popover
  QColor outline() const;    // of what must be found by its outline alone
  QColor selection() const;  // behind the selected row
  QColor hover() const;      // laid over what the pointer is on
  QColor pressed() const;    // laid over what is held down
  QColor buttonFill() const;
  QColor accent() const;
  QColor red() const;
  QColor blue() const;

  QFont titleFont() const;   // first lines
  QFont detailFont() const;  // second lines

  /// A length given for the usual font, in proportion to the font in use.
  int scaled(int atUsualSize) const;

  int imageSize() const { return scaled(40); }
  int rowButtonWidth() const { return scaled(158); }
  int rowButtonHeight() const;
  int rowButtonGap() const { return scaled(6); }
  int rowHeight() const;
  int popoverWidth() const { return scaled(470); }
  int margin() const { return scaled(16); }

 private:
  QColor readable(const QColor &wished) const;
  QColor mixed(const QColor &over, qreal share) const;

  QPalette _palette;
  QFont _font;
  QColor _ground;
  bool _dark;
};

/// How well one colour reads on another, from 1 (not at all) to 21 (black on white).
qreal contrastRatio(const QColor &one, const QColor &other);

/// What a tint that lets something through makes of the ground.
QColor laidOver(const QColor &ground, const QColor &tint);

/// The shade of a colour that is nearest to it and reads on the ground with at least this ratio.
QColor readableOn(const QColor &ground, const QColor &wished, qreal ratio = 4.5);
