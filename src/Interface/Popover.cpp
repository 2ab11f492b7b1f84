#include "Interface/Popover.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "Interface/Look.h"

namespace {

constexpr int kCornerRadius = 12;
constexpr int kArrowHeight = 9;
constexpr int kShadowWidth = 16;
constexpr int kSlide = 6;
constexpr int kAppearanceMilliseconds = 150;
constexpr int kHalfArrow = kArrowHeight + 2;
constexpr PopoverMetrics kMetrics{kArrowHeight, 6, 6};

QScreen *screenOf(const QRect &anchor) {
  QScreen *screen = QGuiApplication::screenAt(anchor.isNull() ? QCursor::pos() : anchor.center());
  return screen ? screen : QGuiApplication::primaryScreen();
}

void paintShadow(QPainter &painter, const QPainterPath &outline, bool dark) {
  // Strokes of growing width, each almost transparent, add up to a soft edge.
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
  // The popover opens while the program is inactive, and stays while a password is asked for.
  setAttribute(Qt::WA_MacAlwaysShowToolWindow);
  _appearance.setDuration(kAppearanceMilliseconds);
  _appearance.setEasingCurve(QEasingCurve::OutCubic);
  _appearance.setStartValue(0.0);
  _appearance.setEndValue(1.0);
  connect(&_appearance, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
    setWindowOpacity(value.toReal());
    moveFrame();
  });
  connect(qApp, &QGuiApplication::applicationStateChanged, this, &Popover::applicationStateChanged);
}

void Popover::setContentView(QWidget *view) {
  if (view == _contentView) return;
  delete _contentView;
  _contentView = view;
  if (!view) return;
  view->setParent(this);
  if (isVisible()) view->show();
  arrangeContent();
}

void Popover::showRelativeTo(const QRect &anchor, Qt::Edge preferredEdge) {
  if (_desktop) _abilities = _desktop->windowAbilities();
  _anchor = _abilities.canBePlaced ? anchor : QRect();
  _preferredEdge = preferredEdge;
  const bool wasShown = isVisible();
  if (!wasShown) emit aboutToShow();
  place();
  if (!wasShown && _animates && _abilities.canFade) {
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

// At the next opening the keyboard focus starts at the top, and its ring shows only when the
// keyboard is used.
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
  auto *button = qobject_cast<QPushButton *>(focusWidget());
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->key() == Qt::Key_Escape) {
    close();
  } else if (isReturn && button && !event->isAutoRepeat()) {
    button->click();
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
  // The content's size hint changes when rows come and go.
  if (event->type() == QEvent::LayoutRequest && isVisible()) place();
  return QWidget::event(event);
}

void Popover::showEvent(QShowEvent *event) {
  if (_desktop) _desktop->keepOutOfTaskbar(*this);
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
  const QScreen *screen = screenOf(_anchor);
  _available = screen->availableGeometry();
  _placement = placePopover(panelSize(_available), _anchor, _preferredEdge,
                            {screen->geometry(), _available}, kMetrics, isLeftToRight());
  moveFrame();
  arrangeContent();
}

void Popover::moveFrame() {
  QRect frame = _placement.panel.marginsAdded(margins());
  if (_appearance.state() == QAbstractAnimation::Running) {
    // Slides towards the item, so that the window never crosses the screen's edge and is pushed
    // back.
    const int slide = qRound(kSlide * (1 - _appearance.currentValue().toReal()));
    frame.translate(0, _placement.arrowEdge == Qt::BottomEdge ? -slide : slide);
  }
  if (_abilities.canBePlaced) {
    setGeometry(frame);
  } else {
    // A tiling desktop does not resize windows of a fixed size.
    setFixedSize(frame.size());
  }
}

QMargins Popover::margins() const {
  // The desktop pushes a window that crosses the screen's edge back, which moves the arrow away
  // from the item.
  const QRect &panel = _placement.panel;
  const auto shadow = [this](int room) {
    return _abilities.canBeTranslucent ? std::clamp(room, 0, kShadowWidth) : 0;
  };
  QMargins margins(shadow(panel.left() - _available.left()), shadow(panel.top() - _available.top()),
                   shadow(_available.right() - panel.right()),
                   shadow(_available.bottom() - panel.bottom()));
  // The shadow must not cover the item and take its clicks.
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
  const Shape shape{size(), _placement.arrowEdge, _placement.arrowX, _abilities.canBeTranslucent};
  if (shape == _shape) return;
  _shape = shape;
  _frame = QPixmap();
  if (_abilities.canBeTranslucent) {
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
  const qreal up = top ? -1 : 1;   // away from the panel
  const qreal inside = base - up;  // overlaps the panel's border, which would separate them
  const qreal x = panel.left() + _placement.arrowX;
  const qreal left = std::max(x - kHalfArrow, panel.left());
  const qreal right = std::min(x + kHalfArrow, panel.right());
  QPolygonF arrow{{left, inside}, {x, base + up * (kArrowHeight - 1)}, {right, inside}};
  // Over a rounded corner, the arrow continues down to the side of the panel.
  const qreal foot = base - up * kCornerRadius;
  if (right > panel.right() - kCornerRadius) arrow << QPointF(panel.right(), foot);
  if (left < panel.left() + kCornerRadius) arrow << QPointF(panel.left(), foot);
  QPainterPath arrowPath;
  arrowPath.addPolygon(arrow);
  arrowPath.closeSubpath();
  return path.united(arrowPath);
}

QPixmap Popover::paintedFrame() const {
  const Look look(this);
  const QPainterPath path = outline(0.5);  // a line of one pixel, sharp
  QPixmap frame((QSizeF(size()) * devicePixelRatioF()).toSize());
  frame.setDevicePixelRatio(devicePixelRatioF());
  // Without a compositor, the translucent pixels of the smooth edge would be black.
  frame.fill(_abilities.canBeTranslucent ? QColor(Qt::transparent) : look.border);
  QPainter painter(&frame);
  painter.setRenderHint(QPainter::Antialiasing);
  if (_abilities.canBeTranslucent) paintShadow(painter, path, look.isDark);
  painter.setPen(QPen(look.border, 1));
  painter.setBrush(look.ground);
  painter.drawPath(path);
  return frame;
}

void Popover::paintEvent(QPaintEvent *) {
  if (_frame.isNull() || _frame.devicePixelRatio() != devicePixelRatioF()) _frame = paintedFrame();
  QPainter(this).drawPixmap(0, 0, _frame);
}

#include "moc_Popover.cpp"
