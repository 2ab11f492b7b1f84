#pragma once

// Colours and sizes, all derived from the desktop's palette and font, in light and dark. One is
// cheap to make: make it where it is needed, so that a change of theme or font shows at the next
// painting.

#include <QColor>
#include <QFont>

class QPalette;
class QWidget;

/// Every text reads on the ground with at least 4.5 to 1, and rows' texts on the selection as well.
struct Colors {
  explicit Colors(const QPalette &palette);

  bool isDark;
  QColor ground;  // of the popover
  QColor accent;
  QColor selection;  // behind the selected row
  QColor text;
  QColor dimText;  // second lines
  QColor disabledText;
  QColor hairline;  // between rows
  QColor border;    // of buttons and of the popover
  QColor outline;   // of what must be found by its outline alone
  QColor hover;     // laid over what the pointer is on
  QColor pressed;   // laid over what is held down
  QColor buttonFill;
  QColor red;
  QColor blue;
};

class Look : public Colors {
 public:
  explicit Look(const QWidget *widget);
  Look(const QPalette &palette, const QFont &font);

  QFont titleFont() const;   // first lines
  QFont detailFont() const;  // second lines
  QFont buttonFont(bool isProminent) const;

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
  QFont _font;
};

/// How well one colour reads on another, from 1 (not at all) to 21 (black on white).
qreal contrastRatio(const QColor &one, const QColor &other);

/// What a tint that lets something through makes of the ground.
QColor laidOver(const QColor &ground, const QColor &tint);

/// The shade of a colour that is nearest to it and reads on the ground with at least this ratio.
QColor readableOn(const QColor &ground, const QColor &wished, qreal ratio = 4.5);
