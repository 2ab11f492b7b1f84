#pragma once

// A label of one line that can change its text by fading. Plain text only. When there is no room,
// the text is shortened in its middle, because its end may be the important part after a long path;
// the tooltip has the whole text. The height never changes, so nothing around the label moves.

#include <QEasingCurve>
#include <QLabel>

class Announcement;
class QVariantAnimation;

class TextField : public QLabel {
  Q_OBJECT

 public:
  enum class TextColor { Normal, Red, Blue };

  explicit TextField(QWidget *parent = nullptr);

  QString stringValue() const { return text(); }

  /// Shows the text at once. A fade that is under way goes on.
  void setStringValue(const QString &text);

  /// Fades the present text out (0.3 s), changes it, and fades the new text in (1.0 s). Returns at
  /// once; does nothing when the text is already shown. Each of several quick calls runs its full
  /// course, and the last one to change the text decides what is shown.
  void setAnimatedStringValue(const QString &text);

  /// Adds a text to the tooltip while the field shows `ofText`.
  void setDetail(const QString &detail, const QString &ofText);

  /// Makes screen readers read each new text at once.
  void setAnnounced();

  TextColor textColor() const { return _textColor; }
  void setTextColor(TextColor color);

  /// 0 invisible, 1 opaque.
  qreal opacity() const { return _opacity; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

 private:
  QVariantAnimation *fadeTo(qreal opacity, int milliseconds, QEasingCurve::Type easing);

  QString _detail;
  QString _detailedText;
  TextColor _textColor = TextColor::Normal;
  Announcement *_announcement = nullptr;
  qreal _opacity = 1.0;
  const QVariantAnimation *_latestFade = nullptr;  // only this one changes the opacity
};
