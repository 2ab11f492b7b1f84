#pragma once

// A frameless window that is attached to a place on the screen, with an arrow that points there.
//
//   popover.setContentView(view);
//   popover.setBehavior(Popover::Behavior::Transient);
//   popover.showRelativeTo(statusItem.anchor(), Qt::BottomEdge);
//
// It takes the size that its content asks for, follows changes of that size, and never leaves the
// screen.

#include <QPainterPath>
#include <QPixmap>
#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

#include "Interface/PopoverPlacement.h"
#include "Platform/Desktop.h"

class Popover;

class PopoverDelegate {
 public:
  virtual ~PopoverDelegate() = default;

  /// Called when the user drags the popover: whether it may be moved away from its place.
  virtual bool popoverShouldDetach(Popover *popover) = 0;
  virtual void popoverDidShow() = 0;
  virtual void popoverWillClose() = 0;
};

class Popover : public QWidget {
  Q_OBJECT

 public:
  enum class Behavior {
    ApplicationDefined,  // closes only when told to, or by Escape
    Transient,           // closes also when another program becomes the active one
  };

  explicit Popover(QWidget *parent = nullptr);

  /// Not owned. Null for none.
  void setDelegate(PopoverDelegate *delegate) { _delegate = delegate; }

  /// Tells what windows can do on this desktop. Not owned, and must live as long as the popover.
  /// Without a desktop, everything is assumed to be possible.
  void setDesktop(const Desktop *desktop) { _desktop = desktop; }

  void setBehavior(Behavior behavior) { _behavior = behavior; }

  /// Whether the popover fades in, where the desktop supports that.
  void setAnimates(bool animates) { _animates = animates; }

  /// Takes ownership of the view and destroys the previous one.
  void setContentView(QWidget *view);

  /// Shows the popover below the anchor, a rectangle in screen coordinates, or above it with
  /// `Qt::TopEdge`; on the other side where there is no room. With a null anchor: at the usual place
  /// of trays on the screen that has the pointer, without an arrow. Where the desktop places windows
  /// itself, there is no arrow either. A popover that is shown already moves to the new place.
  void showRelativeTo(const QRect &anchor, Qt::Edge preferredEdge);

  // close() closes it, as Escape and the window manager do.
  bool isShown() const { return isVisible(); }

  /// While held open, a transient popover does not close when another program becomes active: that
  /// program may be the password prompt for the popover's own request.
  void setHeldOpen(bool held) { _heldOpen = held; }

  PopoverPlacement placement() const { return _placement; }

 signals:
  /// `showRelativeTo` is about to open the popover and has not read the content's size yet.
  void aboutToShow();

 protected:
  void changeEvent(QEvent *event) override;
  void closeEvent(QCloseEvent *event) override;
  bool event(QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void showEvent(QShowEvent *event) override;

 private:
  /// What the painted frame depends on, except for the colours.
  struct Shape {
    QSize size;
    std::optional<Qt::Edge> arrowEdge;
    int arrowX = 0;
    bool translucent = true;
    bool operator==(const Shape &) const = default;
  };

  void place();
  void moveFrame();
  void arrangeContent();
  QSize panelSize(const QRect &available) const;
  QRect panelRect() const;
  QPainterPath outline(qreal inset) const;
  QMargins margins() const;
  QPixmap paintedFrame() const;
  void startAfresh();
  void applicationStateChanged(Qt::ApplicationState state);

  PopoverDelegate *_delegate = nullptr;
  QPointer<QWidget> _contentView;
  QRect _anchor;
  Qt::Edge _preferredEdge = Qt::BottomEdge;
  PopoverPlacement _placement;
  QRect _available;  // the screen's area that is available to windows
  QVariantAnimation _appearance;
  Behavior _behavior = Behavior::ApplicationDefined;
  bool _animates = false;
  bool _heldOpen = false;
  const Desktop *_desktop = nullptr;
  WindowAbilities _abilities;
  Shape _shape;
  QPixmap _frame;  // cached for this shape, because painting is slow; null until painted
};
