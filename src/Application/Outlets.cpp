#include "Application/Outlets.h"

#include <QAction>
#include <QPushButton>

#include "AppDelegate/AppDelegate.h"
#include "Interface/MainInterface.h"

void connectOutlets(MainInterface &interface, AppDelegate &delegate) {
  delegate.setMenu(interface.menu());
  delegate.setWindow(interface.window());
  delegate.setInfoWindow(interface.infoWindow());
  delegate.setPopover(interface.popover());
  delegate.setTableView(interface.tableView());
  delegate.setEmptyView(interface.emptyView());
  delegate.setListNotice(interface.listNotice());
  delegate.setTrayNotice(interface.trayNotice());
  delegate.setVersionLabel(interface.versionLabel());
  delegate.setStatusTextField(interface.statusTextField());
  delegate.setRunAtLoadCheck(interface.runAtLoadCheck());
  delegate.setShowAllDisksCheck(interface.showAllDisksCheck());
  delegate.setForceUmountCheck(interface.forceUmountCheck());

  const auto quit = [&delegate] { delegate.closeApp(); };
  QObject::connect(interface.showAllDisksCheck(), &CheckBox::acted, &delegate,
                   [&] { delegate.showAllDisks(interface.showAllDisksCheck()); });
  QObject::connect(interface.runAtLoadCheck(), &CheckBox::acted, &delegate,
                   [&] { delegate.runAtLoad(interface.runAtLoadCheck()); });
  QObject::connect(interface.infoButton(), &QPushButton::clicked, &delegate,
                   &AppDelegate::showInfo);
  QObject::connect(interface.webSiteButton(), &QPushButton::clicked, &delegate,
                   &AppDelegate::visitWebSite);
  QObject::connect(interface.quitButton(), &QPushButton::clicked, &delegate, quit);
  QObject::connect(interface.quitAction(), &QAction::triggered, &delegate, quit);
  QObject::connect(interface.openAction(), &QAction::triggered, &delegate,
                   &AppDelegate::showPopover);
}
