#pragma once

// How the popover's stock widgets look: check boxes, push buttons (flat ones show only their text
// until they have the pointer or the focus), slim scroll bars without arrows, and frames that are
// hairlines. Desktops' own styles are made for windows of their own colours; in the dark, check
// boxes would lose their outlines on the popover's background.
//
//   auto *button = Style::applied(new QPushButton(tr("Quit")));
//
// Apply it to single widgets: dialogs keep the desktop's style.

#include <QProxyStyle>

class Style : public QProxyStyle {
  Q_OBJECT

 public:
  /// Gives the style to the widget, and returns the widget.
  template <typename Widget>
  static Widget *applied(Widget *widget) {
    widget->setStyle(shared());
    return widget;
  }

  void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                   const QWidget *widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                          QPainter *painter, const QWidget *widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption *option,
                  const QWidget *widget) const override;
  void polish(QWidget *widget) override;
  using QProxyStyle::polish;
  QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                         const QWidget *widget) const override;

 private:
  using QProxyStyle::QProxyStyle;
  static Style *shared();
};
