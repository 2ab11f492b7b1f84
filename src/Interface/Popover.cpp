#include "Interface/Popover.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "Interface/Look.h"
#include "Interface/WindowHints.h"

namespace {

constexpr int kCornerRadius = 12;
constexpr int kArrowHeight = 9;
constexpr int kShadowWidth = 16;
constexpr int kSlide = 6;
constexpr int kAppearanceMilliseconds = 150;
constexpr PopoverMetrics kMetrics{kArrowHeight, kCornerRadius + kArrowHeight + 2, 6};

QScreen *screenOf(const QRect &anchor) {
  QScreen *screen = QGuiApplication::screenAt(anchor.isNull() ? QCursor::pos() : anchor.center());
  return screen ? screen : QGuiApplication::primaryScreen();
}

void paintShadow(QPainter &painter, const QPainterPath &outline, bool dark) {
  // Wider and wider strokes, each almost nothing, add up to a soft edge.
  QColor shade(Qt::black);
  shade.setAlphaF(dark ? 0.022F : 0.011F);
  for (int width = 1; width <= kShadowWidth; ++width) {
    painter.strokePath(outline.translated(0, 2),
                       QPen(shade, 2.0 * (width - 1), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }
}

}  // namespace

Popover::Popover(QWidget *parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint) {
  setAttribute(Qt::WA_TranslucentBackground);
  // It opens without its program being the active one, and stays while a password is asked for.
  setAttribute(Qt::WA_MacAlwaysShowToolWindow);
  _appearance.setDuration(kAppearanceMilliseconds);
  _appearance.setEasingCurve(QEasingCurve::OutCubic);
  _appearance.setStartValue(0.0);
  _appearance.setEndValue(1.0);
  connect(&_appearance, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
    setWindowOpacity(value.toReal());
    place();
  });
  connect(qApp, &QGuiApplication::applicationStateChanged, this, &Popover::applicationStateChanged);
}

void Popover::setContentView(QWidget *view) {
  if (view == _contentView) return;
  delete _contentView;
  _contentView = view;
  if (!view) return;
  view->setParent(this);
  view->show();
  arrangeContent();
}

void Popover::showRelativeTo(const QRect &anchor, Qt::Edge preferredEdge) {
  _anchor = windowsCanBePlaced() ? anchor : QRect();
  _preferredEdge = preferredEdge;
  _composited = windowsAreComposited();
  const bool wasShown = isVisible();
  place();
  if (!wasShown && _animates && windowsCanFade()) {
    setWindowOpacity(0);
    _appearance.start();
  }
  show();
  raise();
  activateWindow();
  if (!wasShown && _delegate) _delegate->popoverDidShow();
}

void Popover::closeEvent(QCloseEvent *event) {
  _appearance.stop();
  _frame = QPixmap();
  startAfresh();
  if (isVisible() && _delegate) _delegate->popoverWillClose();
  QWidget::closeEvent(event);
}

// The next time, the keyboard begins at the top, and shows itself when it is used.
void Popover::startAfresh() {
  if (QWidget *focused = focusWidget()) focused->clearFocus();
  setAttribute(Qt::WA_KeyboardFocusChange, false);
}

void Popover::changeEvent(QEvent *event) {
  if (event->type() == QEvent::PaletteChange) _frame = QPixmap();
  QWidget::changeEvent(event);
}

void Popover::applicationStateChanged(Qt::ApplicationState state) {
  if (state == Qt::ApplicationActive || _behavior != Behavior::Transient) return;
  if (isVisible() && !_heldOpen) close();
}

void Popover::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void Popover::mouseMoveEvent(QMouseEvent *event) {
  const bool dragged = event->buttons() & Qt::LeftButton;
  if (dragged && _delegate && _delegate->popoverShouldDetach(this))
    windowHandle()->startSystemMove();
}

bool Popover::event(QEvent *event) {
  // The content asks for another size when rows come and go.
  if (event->type() == QEvent::LayoutRequest && isVisible()) place();
  return QWidget::event(event);
}

void Popover::showEvent(QShowEvent *event) {
  keepOutOfTaskbar(this);
  QWidget::showEvent(event);
}

QSize Popover::panelSize(const QRect &available) const {
  if (!_contentView) return {};
  _contentView->ensurePolished();
  QSize wished = _contentView->sizeHint();
  if (_contentView->hasHeightForWidth()) {
    wished.setHeight(_contentView->heightForWidth(wished.width()));
  }
  const int most = available.height() - kArrowHeight - 2 * kMetrics.screenMargin;
  return {wished.width(), std::min(wished.height(), most)};
}

void Popover::place() {
  const QRect available = screenOf(_anchor)->availableGeometry();
  _placement = placePopover(panelSize(available), _anchor, _preferredEdge, available, kMetrics);
  QRect frame = _placement.panel.marginsAdded(margins());
  if (_appearance.state() == QAbstractAnimation::Running) {
    const qreal left = 1 - _appearance.currentValue().toReal();
    const int slide = qRound(kSlide * left);
    frame.translate(0, _placement.arrowEdge == Qt::BottomEdge ? slide : -slide);
  }
  if (windowsCanBePlaced()) {
    setGeometry(frame);
  } else {
    // A desktop of tiles leaves windows of one size alone.
    setFixedSize(frame.size());
  }
  arrangeContent();
}

QMargins Popover::margins() const {
  const int around = _composited ? kShadowWidth : 0;
  QMargins margins(around, around, around, around);
  // The shadow must not lie on the item and take its clicks.
  if (_placement.arrowEdge == Qt::TopEdge) margins.setTop(kArrowHeight);
  if (_placement.arrowEdge == Qt::BottomEdge) margins.setBottom(kArrowHeight);
  return margins;
}

QRect Popover::panelRect() const {
  return rect().marginsRemoved(margins());
}

void Popover::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  arrangeContent();
}

void Popover::arrangeContent() {
  if (_contentView) _contentView->setGeometry(panelRect());
  const Shape shape{size(), _placement.arrowEdge, _placement.arrowX, _composited};
  if (shape == _shape) return;
  _shape = shape;
  _frame = QPixmap();
  if (_composited) {
    clearMask();
  } else {
    setMask(QRegion(outline(0).toFillPolygon().toPolygon()));
  }
  update();
}

QPainterPath Popover::outline(qreal inset) const {
  const QRectF panel = QRectF(panelRect()).adjusted(inset, inset, -inset, -inset);
  QPainterPath path;
  path.addRoundedRect(panel, kCornerRadius, kCornerRadius);
  if (!_placement.arrowEdge) return path;

  const bool top = _placement.arrowEdge == Qt::TopEdge;
  const qreal base = top ? panel.top() : panel.bottom();
  const qreal tip = top ? base - kArrowHeight + 1 : base + kArrowHeight - 1;
  const qreal inside = top ? base + 1 : base - 1;  // or the panel's own line would part them
  const qreal x = panel.left() + _placement.arrowX;
  QPainterPath arrow;
  arrow.moveTo(x - kArrowHeight - 2, inside);
  arrow.lineTo(x, tip);
  arrow.lineTo(x + kArrowHeight + 2, inside);
  arrow.closeSubpath();
  return path.united(arrow);
}

QPixmap Popover::paintedFrame() const {
  const Look look(this);
  const QPainterPath path = outline(0.5);  // a line of one pixel, sharp
  QPixmap frame((QSizeF(size()) * devicePixelRatioF()).toSize());
  frame.setDevicePixelRatio(devicePixelRatioF());
  // Without a compositor, what the smooth edge lets through would be black.
  frame.fill(_composited ? QColor(Qt::transparent) : look.border());
  QPainter painter(&frame);
  painter.setRenderHint(QPainter::Antialiasing);
  if (_composited) paintShadow(painter, path, look.isDark());
  painter.setPen(QPen(look.border(), 1));
  painter.setBrush(look.ground());
  painter.drawPath(path);
  return frame;
}

void Popover::paintEvent(QPaintEvent *) {
  if (_frame.isNull() || _frame.devicePixelRatio() != devicePixelRatioF()) _frame = paintedFrame();
  QPainter(this).drawPixmap(0, 0, _frame);
}
