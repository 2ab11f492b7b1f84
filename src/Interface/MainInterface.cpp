#include "Interface/MainInterface.h"

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "Interface/EmptyView.h"
#include "Interface/InfoWindow.h"
#include "Interface/InputGate.h"
#include "Interface/Look.h"
#include "Interface/Notice.h"
#include "Interface/Style.h"

using namespace Qt::StringLiterals;

// A linker drops the registration of a static library's resources unless it is called.
static void registerPictures() {
  Q_INIT_RESOURCE(pictures);
}

namespace {

QFrame *makeHairline() {
  auto *line = Style::applied(new QFrame);
  line->setFrameShape(QFrame::HLine);
  line->setFixedHeight(1);
  return line;
}

QPushButton *makeFlatButton(const QString &title, QWidget *parent) {
  auto *button = Style::applied(new QPushButton(title, parent));
  button->setFlat(true);
  return button;
}

}  // namespace

MainInterface::MainInterface()
    : _menu(std::make_unique<QMenu>()),
      _popover(std::make_unique<Popover>()),
      _window(std::make_unique<QWidget>()),
      _infoWindow(std::make_unique<InfoWindow>()) {
  registerPictures();
  _popover->setWindowTitle(u"Keldra"_s);
  _popover->setContentView(_content = new QWidget);
  QObject::connect(_popover.get(), &Popover::aboutToShow, _content, [this] { arrange(); });
  makeParts();
  _openAction = _menu->addAction(tr("Open Keldra"));
  _menu->addSeparator();
  _quitAction = _menu->addAction(tr("Quit"));
}

MainInterface::~MainInterface() = default;

// In the order of keyboard focus.
void MainInterface::makeParts() {
  _tableView = new TableView(_content);
  _tableView->setAccessibleName(tr("Partitions"));
  _tableView->setPrototype(u"MainCell"_s,
                           [](QWidget *parent) { return new ESPTableCellView(parent); });
  QObject::connect(_tableView, &TableView::reloaded, _content, [this] { showTableOrEmptyText(); });
  _emptyView = new EmptyView(_content);
  _listNotice = new Notice(_content);
  _trayNotice = new Notice(_content);
  _showAllDisksCheck = new CheckBox(tr("Show all"), _content);
  _forceUmountCheck = new CheckBox(tr("Force unmount"), _content);
  _runAtLoadCheck = new CheckBox(tr("Launch at login"), _content);
  _statusTextField = new TextField(_content);
  _statusTextField->setAccessibleDescription(tr("Status"));
  _statusTextField->setAnnounced();
  _versionLabel = new TextField(_content);
  _infoButton = makeFlatButton(tr("Info"), _content);
  _webSiteButton = makeFlatButton(tr("Web site"), _content);
  _quitButton = makeFlatButton(tr("Quit"), _content);
  InputGate::setWayOut(_quitButton);
}

// Fonts and pictures are loaded only when the popover first opens: a program that waits in the tray
// does not need them.
void MainInterface::arrange() {
  if (_content->layout()) return;
  QApplication::setWindowIcon(QIcon(u":/Keldra.png"_s));
  const Look look(_content);
  auto *boxes = new QHBoxLayout;
  boxes->addWidget(_showAllDisksCheck);
  boxes->addStretch();
  boxes->addWidget(_forceUmountCheck);
  boxes->addStretch();
  boxes->addWidget(_runAtLoadCheck);
  auto *options = new QVBoxLayout;
  options->setContentsMargins(look.margin(), look.scaled(10), look.margin(), look.scaled(10));
  options->setSpacing(look.scaled(9));
  options->addLayout(boxes);
  options->addWidget(_statusTextField);

  auto *foot = new QHBoxLayout;
  // The flat button's text, not its invisible frame, is aligned with the widgets above.
  const int overhang = look.scaled(10);
  const int margin = look.margin() - overhang;
  foot->setContentsMargins(margin, look.scaled(5), margin, look.scaled(5));
  foot->setSpacing(look.scaled(2));
  foot->addSpacing(overhang);
  foot->addWidget(_versionLabel, 1);
  for (QPushButton *button : {_infoButton, _webSiteButton, _quitButton}) foot->addWidget(button);

  auto *layout = new QVBoxLayout(_content);
  layout->setContentsMargins(1, 1, 1, 1);  // the popover's border
  layout->setSpacing(0);
  layout->addWidget(_listNotice);
  layout->addWidget(_trayNotice);
  layout->addWidget(_tableView, 1);
  layout->addWidget(_emptyView, 1);
  layout->addWidget(makeHairline());
  layout->addLayout(options);
  layout->addWidget(makeHairline());
  layout->addLayout(foot);
  showTableOrEmptyText();
}

void MainInterface::showTableOrEmptyText() {
  if (!_content->layout()) return;  // the texts take their size from fonts
  const bool empty = _tableView->numberOfRows() == 0;
  _emptyView->setVisible(empty);
  _tableView->setVisible(!empty);
}
