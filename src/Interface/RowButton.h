#pragma once

// A button in a row of the table. Its title is data that its action reads back, so it is kept apart
// from what is painted: the title is never decorated or translated, and it is the accessible name.
//
//   button->setTitle(u"mount disk0s1"_s);
//   button->setProminent(true);
//   button->setAction([this](RowButton *sender) { mountOrUmount(sender); });
//
// Rows are recycled, so a press is cancelled when the title changes.

#include <QBasicTimer>
#include <QPushButton>
#include <functional>

class Look;

class RowButton : public QPushButton {
  Q_OBJECT

 public:
  using Action = std::function<void(RowButton *sender)>;

  explicit RowButton(QWidget *parent = nullptr);

  QString title() const { return _title; }

  /// Cancels a press that is under way if the new title differs.
  void setTitle(const QString &title);

  /// Replaces the action of a click: the mouse, Space, Return in a popover, or a screen reader's
  /// Press. The second press of a double click and a key's repetition are not clicks.
  void setAction(Action action);

  /// Whether the action has been called and has not returned.
  bool isActing() const { return _acting > 0; }

  /// Shows a turning spinner beside a dimmed title. Changes nothing else: the button stays enabled.
  void setBusy(bool busy);
  bool isBusy() const { return _busy; }

  /// The accent look, for the main action of the row.
  void setProminent(bool prominent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  bool event(QEvent *event) override;
  void hideEvent(QHideEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void showEvent(QShowEvent *event) override;
  void timerEvent(QTimerEvent *event) override;

 private:
  void act();
  void updateSpinner();
  bool isProminent() const;
  void paintSpinner(QPainter &painter, const Look &look, const QRectF &place) const;

  QString _title;
  Action _action;
  QBasicTimer _spinner;
  int _acting = 0;
  bool _busy = false;
  bool _prominent = false;
};
