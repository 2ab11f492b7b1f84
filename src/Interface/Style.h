#pragma once

// How the popover's stock widgets look: check boxes, push buttons (flat ones are mere words until
// the pointer or the keyboard comes to them), slim scroll bars without arrows, and frames that are
// hairlines. Desktops' own styles paint for windows of their own colours; on the popover's ground
// the boxes would lose their outlines in the dark.
//
//   auto *button = Style::applied(new QPushButton(tr("Quit")));
//
// It is meant for single widgets: dialogs look as the desktop likes them.

#include <QProxyStyle>

class Style : public QProxyStyle {
  Q_OBJECT

 public:
  /// The widget, which has the style from now on.
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
