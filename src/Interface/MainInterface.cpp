#include "Interface/MainInterface.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "Interface/EmptyView.h"
#include "Interface/Hairline.h"
#include "Interface/InfoWindow.h"
#include "Interface/Look.h"
#include "Interface/QuietButton.h"

using namespace Qt::StringLiterals;

// A linker leaves out what a static library's resources are registered by, unless it is asked for.
static void registerPictures() {
  Q_INIT_RESOURCE(pictures);
}

MainInterface::MainInterface()
    : _menu(std::make_unique<QMenu>()),
      _popover(std::make_unique<Popover>()),
      _window(std::make_unique<QWidget>()),
      _infoWindow(std::make_unique<InfoWindow>()) {
  registerPictures();
  _popover->setWindowTitle(u"Keldra"_s);
  QApplication::setWindowIcon(QIcon(u":/Keldra.png"_s));
  _popover->setContentView(makeContent());
  _openAction = _menu->addAction(tr("Open Keldra"));
  _menu->addSeparator();
  _quitAction = _menu->addAction(tr("Quit"));
  showTableOrEmptyText();
}

MainInterface::~MainInterface() = default;

QWidget *MainInterface::makeContent() {
  auto *content = new QWidget;
  _tableView = new TableView;
  _tableView->setAccessibleName(tr("Partitions"));
  _tableView->registerPrototype(u"MainCell"_s,
                                [](QWidget *parent) { return new ESPTableCellView(parent); });
  QObject::connect(_tableView, &TableView::reloaded, content, [this] { showTableOrEmptyText(); });
  _emptyView = new EmptyView;

  auto *layout = new QVBoxLayout(content);
  layout->setContentsMargins(1, 1, 1, 1);  // the popover's border
  layout->setSpacing(0);
  layout->addWidget(_tableView, 1);
  layout->addWidget(_emptyView, 1);
  layout->addWidget(new Hairline);
  layout->addWidget(makeOptions());
  layout->addWidget(new Hairline);
  layout->addWidget(makeFoot());
  return content;
}

QWidget *MainInterface::makeOptions() {
  auto *options = new QWidget;
  const Look look(options);
  _showAllDisksCheck = new CheckBox(tr("Show all"));
  _forceUmountCheck = new CheckBox(tr("Force unmount"));
  _runAtLoadCheck = new CheckBox(tr("Launch at login"));
  _statusTextField = new TextField;
  _statusTextField->setAccessibleName(tr("Status"));
  _statusTextField->setAnnounced();

  auto *boxes = new QHBoxLayout;
  boxes->addWidget(_showAllDisksCheck);
  boxes->addStretch();
  boxes->addWidget(_forceUmountCheck);
  boxes->addStretch();
  boxes->addWidget(_runAtLoadCheck);
  auto *layout = new QVBoxLayout(options);
  layout->setContentsMargins(look.margin(), look.scaled(10), look.margin(), look.scaled(10));
  layout->setSpacing(look.scaled(9));
  layout->addLayout(boxes);
  layout->addWidget(_statusTextField);
  return options;
}

QWidget *MainInterface::makeFoot() {
  auto *foot = new QWidget;
  const Look look(foot);
  _versionLabel = new TextField;
  _infoButton = new QuietButton(tr("Info"));
  _webSiteButton = new QuietButton(tr("Web site"));
  _quitButton = new QuietButton(tr("Quit"));

  auto *layout = new QHBoxLayout(foot);
  // A quiet button's word, not its invisible frame, is in line with what stands above.
  const int overhang = look.scaled(10);
  const int margin = look.margin() - overhang;
  layout->setContentsMargins(margin, look.scaled(5), margin, look.scaled(5));
  layout->setSpacing(look.scaled(2));
  layout->addSpacing(overhang);
  layout->addWidget(_versionLabel, 1);
  layout->addWidget(_infoButton);
  layout->addWidget(_webSiteButton);
  layout->addWidget(_quitButton);
  return foot;
}

void MainInterface::showTableOrEmptyText() {
  const bool empty = _tableView->numberOfRows() == 0;
  _emptyView->setVisible(empty);
  _tableView->setVisible(!empty);
}
