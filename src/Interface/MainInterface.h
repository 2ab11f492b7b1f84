#pragma once

// Builds and owns everything that the user sees: the status item's menu, and the popover with the
// table and the controls around it. It decides how widgets look and where they are; its owner
// decides what they say and do.
//
// Needs QApplication, and `installAccessibility` called.

#include <QCoreApplication>
#include <QMenu>
#include <memory>

#include "ESPTableCellView.h"
#include "Interface/CheckBox.h"
#include "Interface/Popover.h"
#include "Interface/RowButton.h"
#include "Interface/TableView.h"
#include "Interface/TextField.h"

class EmptyView;
class InfoWindow;
class Notice;
class QPushButton;

class MainInterface {
  Q_DECLARE_TR_FUNCTIONS(MainInterface)

 public:
  MainInterface();
  ~MainInterface();
  MainInterface(const MainInterface &) = delete;
  MainInterface &operator=(const MainInterface &) = delete;

  Popover *popover() const { return _popover.get(); }
  /// Its prototype "MainCell" is an ESPTableCellView.
  TableView *tableView() const { return _tableView; }
  /// Shown in place of the table while it has no rows: the situation, and what to do about it.
  EmptyView *emptyView() const { return _emptyView; }
  /// Above the rows: why the list is not complete. Empty when the list is complete.
  Notice *listNotice() const { return _listNotice; }
  /// Also above the rows: says that there is no tray.
  Notice *trayNotice() const { return _trayNotice; }
  CheckBox *showAllDisksCheck() const { return _showAllDisksCheck; }
  CheckBox *forceUmountCheck() const { return _forceUmountCheck; }
  CheckBox *runAtLoadCheck() const { return _runAtLoadCheck; }
  TextField *statusTextField() const { return _statusTextField; }
  TextField *versionLabel() const { return _versionLabel; }
  QPushButton *infoButton() const { return _infoButton; }
  QPushButton *webSiteButton() const { return _webSiteButton; }
  QPushButton *quitButton() const { return _quitButton; }

  /// The program itself never shows it.
  QWidget *window() const { return _window.get(); }

  InfoWindow *infoWindow() const { return _infoWindow.get(); }

  QMenu *menu() const { return _menu.get(); }
  QAction *openAction() const { return _openAction; }
  QAction *quitAction() const { return _quitAction; }

 private:
  void makeParts();
  void arrange();
  void showTableOrEmptyText();

  std::unique_ptr<QMenu> _menu;
  std::unique_ptr<Popover> _popover;
  std::unique_ptr<QWidget> _window;
  std::unique_ptr<InfoWindow> _infoWindow;
  QWidget *_content = nullptr;  // the popover's, which owns these:
  TableView *_tableView = nullptr;
  EmptyView *_emptyView = nullptr;
  Notice *_listNotice = nullptr;
  Notice *_trayNotice = nullptr;
  CheckBox *_showAllDisksCheck = nullptr;
  CheckBox *_forceUmountCheck = nullptr;
  CheckBox *_runAtLoadCheck = nullptr;
  TextField *_statusTextField = nullptr;
  TextField *_versionLabel = nullptr;
  QPushButton *_infoButton = nullptr;
  QPushButton *_webSiteButton = nullptr;
  QPushButton *_quitButton = nullptr;
  // In the menu:
  QAction *_openAction = nullptr;
  QAction *_quitAction = nullptr;
};
