#include "Interface/InfoWindow.h"

#include <QClipboard>
#include <QFocusEvent>
#include <QFormLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "Interface/Look.h"
#include "Interface/PlainText.h"

using namespace Qt::StringLiterals;

namespace {

// The side of the window where reading begins, whatever the direction of the text itself.
Qt::Alignment leadingEdge(const QWidget *widget) {
  return (widget->isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute;
}

QLabel *makeTitle(QWidget *window) {
  const Look look(window);
  auto *title = new QLabel(QGuiApplication::applicationDisplayName(), window);
  QFont font = look.titleFont();
  font.setPointSizeF(font.pointSizeF() * 1.6);
  title->setFont(font);
  title->setAlignment(leadingEdge(window) | Qt::AlignVCenter);
  return title;
}

QLabel *makePicture(QWidget *window) {
  auto *picture = new QLabel(window);
  const int side = Look(window).scaled(64);
  picture->setPixmap(QIcon(u":/Keldra.png"_s).pixmap(side));
  picture->setAccessibleName(QGuiApplication::applicationDisplayName());
  return picture;
}

// Can be selected with the mouse or the keyboard. The keyboard focus selects the whole text, which
// also shows where the focus is.
class Value : public QLabel {
 public:
  explicit Value(const QString &value) : QLabel(printable(value)) {
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setFocusPolicy(Qt::StrongFocus);
    setWordWrap(true);
    setAlignment(leadingEdge(this));
  }

 protected:
  void focusInEvent(QFocusEvent *event) override {
    QLabel::focusInEvent(event);
    const bool byKeyboard =
        event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byKeyboard) setSelection(0, static_cast<int>(text().size()));
  }
};

}  // namespace

InfoWindow::InfoWindow(QWidget *parent) : QDialog(parent) {
  setWindowTitle(tr("About Keldra"));
}

void InfoWindow::makeContent() {
  const Look look(this);
  auto *head = new QHBoxLayout;
  head->setSpacing(look.margin());
  head->addWidget(makePicture(this));
  auto *words = new QVBoxLayout;
  words->setSpacing(look.scaled(2));
  words->addStretch();
  words->addWidget(makeTitle(this));
  words->addWidget(new QLabel(tr("EFI System Partitions, one click away"), this));
  words->addStretch();
  head->addLayout(words, 1);

  auto *copy = new QPushButton(tr("&Copy"), this);
  copy->setToolTip(tr("Copies all of it as text, for a report of a fault"));
  connect(copy, &QPushButton::clicked, this,
          [this] { QGuiApplication::clipboard()->setText(text()); });
  _closeButton = new QPushButton(tr("C&lose"), this);
  _closeButton->setDefault(true);
  connect(_closeButton, &QPushButton::clicked, this, &QWidget::close);
  auto *buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(copy);
  buttons->addWidget(_closeButton);

  _rows = new QFormLayout;
  _rows->setHorizontalSpacing(look.margin());
  // Some styles keep fields at their preferred width, which cuts texts that wrap.
  _rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(look.scaled(24), look.scaled(20), look.scaled(24), look.scaled(20));
  layout->setSpacing(look.margin());
  layout->addLayout(head);
  layout->addLayout(_rows, 1);
  layout->addLayout(buttons);
  setMinimumWidth(look.scaled(420));
}

void InfoWindow::setFacts(const Facts &facts) {
  _facts = facts;
  if (!layout()) makeContent();
  while (_rows->rowCount() > 0) _rows->removeRow(0);
  for (const auto &[subject, value] : facts) {
    if (value.isEmpty()) continue;
    auto *label = new QLabel(subject);
    label->setAlignment(Qt::AlignTop);
    auto *shown = new Value(value);
    label->setBuddy(shown);  // a screen reader reads them together
    _rows->addRow(label, shown);
    // Shown at once, because hidden widgets do not count for the window's size.
    label->show();
    shown->show();
  }
  fitContent();
}

void InfoWindow::fitContent() {
  layout()->activate();
  const int width = std::max(minimumWidth(), layout()->totalSizeHint().width());
  const int height = layout()->totalHeightForWidth(width);
  resize(width, height >= 0 ? height : layout()->totalSizeHint().height());
}

QString InfoWindow::text() const {
  QStringList lines;
  for (const auto &[subject, value] : _facts) lines += subject + u": "_s + printable(value);
  return lines.join(u'\n');
}

void InfoWindow::makeKeyAndOrderFront() {
  _closeButton->setFocus();
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void InfoWindow::center() {
  QRect place = frameGeometry();
  place.moveCenter(screen()->availableGeometry().center());
  move(place.topLeft());
}

#include "moc_InfoWindow.cpp"
