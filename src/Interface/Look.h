#pragma once

// Colours and sizes, all derived from the desktop's palette and font, in light and dark. An object
// is cheap to make: make one for each use, so that a change of theme or font shows at the next
// painting.

#include <QColor>
#include <QFont>

class QPalette;
class QWidget;

/// Every text has a contrast of at least 4.5 to 1 to the ground, and texts in rows also to the
/// selection.
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
  QColor outline;   // of widgets that only their outline makes visible
  QColor hover;     // laid over the widget under the pointer
  QColor pressed;   // laid over a widget that is held down
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

  /// Scales a length that is given for the usual font to the font in use.
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

/// The contrast of two colours, from 1 (none) to 21 (black on white).
qreal contrastRatio(const QColor &one, const QColor &other);

/// The colour that results from a translucent tint over the ground.
QColor laidOver(const QColor &ground, const QColor &tint);

/// The nearest shade of a colour that has at least this contrast to the ground.
QColor readableOn(const QColor &ground, const QColor &wished, qreal ratio = 4.5);
