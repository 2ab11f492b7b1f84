#pragma once

// A label of one line that can change its text by fading. Plain text only, shortened in its middle
// when there is no room, because what has happened may stand behind a long path; the whole is in
// the tooltip. Its height never changes, so nothing around it moves.

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

  /// Fades the present text out (0.3 s), changes it, and fades the new one in (1.0 s). Returns at
  /// once; does nothing when the text is the one that is shown now. Calls in quick succession each
  /// run their course, and the last to change the text decides what is shown.
  void setAnimatedStringValue(const QString &text);

  /// Says more in the tooltip while the field shows this very text.
  void setDetail(const QString &detail, const QString &ofText);

  /// Has screen readers say each new text at once.
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
  const QVariantAnimation *_latestFade = nullptr;  // it alone decides the opacity
};
