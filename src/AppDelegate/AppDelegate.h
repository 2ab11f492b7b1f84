#pragma once

// The one long-lived object: owns everything the user sees, and follows the machine.
//
//   AppDelegate delegate(platform, desktop);
//   MainInterface interface;
//   connectOutlets(interface, delegate);
//   delegate.applicationDidFinishLaunching();
//
// Everything runs on the main thread. A row action blocks in a nested run of the run loop until the
// disk service has answered; meanwhile input is swallowed, the main queue rests and the popover
// stays open.

#include <QHash>
#include <QObject>
#include <QVector>
#include <memory>
#include <optional>

#include "AppDelegate/RowRecord.h"
#include "Foundation/MainQueue.h"
#include "Interface/Application.h"
#include "Interface/Popover.h"
#include "Interface/TableView.h"
#include "Platform/Desktop.h"
#include "Platform/LoginItems.h"

class CheckBox;
class EmptyView;
class InfoWindow;
class ManagedObjectContext;
class ManagedObjectModel;
class Notice;
class PersistentStoreCoordinator;
class Platform;
class QAction;
class QMenu;
class QUndoStack;
class RowButton;
class StatusItem;
class TextField;
struct Notification;

class AppDelegate : public QObject,
                    public PopoverDelegate,
                    public TableViewDataSource,
                    public TableViewDelegate {
  Q_OBJECT

 public:
  /// Both must outlive the delegate, and the platform be the current one.
  AppDelegate(Platform &platform, Desktop &desktop);
  ~AppDelegate() override;

  // The outlets: objects of the interface, which owns them. All are connected before start-up, and the
  // delegate does not touch them as it ends.
  /// The rows' actions go before its last one.
  QMenu *menu() const { return _menu; }
  void setMenu(QMenu *menu) { _menu = menu; }
  Popover *popover() const { return _popover; }
  void setPopover(Popover *popover) { _popover = popover; }
  TableView *tableView() const { return _tableView; }
  void setTableView(TableView *tableView) { _tableView = tableView; }
  TextField *versionLabel() const { return _versionLabel; }
  void setVersionLabel(TextField *label) { _versionLabel = label; }
  CheckBox *runAtLoadCheck() const { return _runAtLoadCheck; }
  void setRunAtLoadCheck(CheckBox *check) { _runAtLoadCheck = check; }
  CheckBox *showAllDisksCheck() const { return _showAllDisksCheck; }
  void setShowAllDisksCheck(CheckBox *check) { _showAllDisksCheck = check; }
  CheckBox *forceUmountCheck() const { return _forceUmountCheck; }
  void setForceUmountCheck(CheckBox *check) { _forceUmountCheck = check; }
  TextField *statusTextField() const { return _statusTextField; }
  void setStatusTextField(TextField *field) { _statusTextField = field; }
  QWidget *window() const { return _window; }
  void setWindow(QWidget *window) { _window = window; }
  InfoWindow *infoWindow() const { return _infoWindow; }
  void setInfoWindow(InfoWindow *window) { _infoWindow = window; }
  /// What stands in the table's place while it has no rows.
  EmptyView *emptyView() const { return _emptyView; }
  void setEmptyView(EmptyView *view) { _emptyView = view; }
  /// Says that the list is not complete, until a refresh succeeds.
  void setListNotice(Notice *notice) { _listNotice = notice; }
  /// Says that there is no tray, and what to do, while the popover shows itself for that.
  void setTrayNotice(Notice *notice) { _trayNotice = notice; }

  // Start-up and end.
  void applicationDidFinishLaunching();
  /// The Quit button, and whatever else asks for the program's end: it ends, from the event loop, unless
  /// `applicationShouldTerminate` says no. While a row action is under way, that is asked when it is
  /// over, or after five seconds if it lasts longer; while it is being asked already, not once more.
  void closeApp();
  /// Whether the user's session may end, and the program with it. `mayAsk` tells whether the person may
  /// be shown dialogs, and is called only when there may be something to ask; without them, unsaved
  /// changes are saved or, when that fails, keep the session.
  bool sessionMayEnd(const std::function<bool()> &mayAsk);

  // The partition list.

  /// Rebuilds the list from nothing and makes the table show it. Throws std::invalid_argument when
  /// a record lacks a value; the rows before it stay, and the table is not told.
  void refreshLists();
  const QVector<RowRecord> &tableViewContents() const { return _tableViewContents; }
  /// Index of the row that was last selected, -1 for none. A refresh leaves it as it was.
  qint64 lastSelectedRow() const { return _lastSelectedRow; }

  // What the table asks.
  qint64 numberOfRowsInTableView(TableView *tableView) override;
  TableCellView *tableView(TableView *tableView, const TableColumn &viewForTableColumn,
                           qint64 row) override;
  void tableView(TableView *tableView, QWidget *didAddRowView, qint64 forRow) override;
  void tableViewSelectionDidChange(TableView *sender) override;

  // Actions of the controls. The row buttons carry what they do in their titles.
  void mountOrUmount(RowButton *sender);
  void openEsp(RowButton *sender);
  void showAllDisks(CheckBox *sender);

  // Launch at login: the check box, the user default "RunAtload" and the login item are kept in
  // line.
  void runAtLoad(CheckBox *sender);
  /// Whether this program has a login item.
  bool isLaunchAtStartup() const;
  /// Adds the item when there is none, removes it when there is one. Failures are silent.
  void toggleLaunchAtStartup();
  /// The first item that starts this program.
  std::optional<LoginItems::Item> itemRefInLoginItems() const;

  // What the machine and `DiskArbitrator` announce.
  void addRefreshObserver();
  void mounted(const Notification &notification);
  void umounted(const Notification &notification);
  void renamed(const Notification &notification);
  void arbitrator(const Notification &notification);
  void stopRunning();

  // The popover.

  /// Opens it, or moves it to where the status item is now.
  void showPopover();
  /// What watches for activity in other programs, which closes the popover. Null for none; it may
  /// outlive the popover's being open.
  EventMonitor *popoverTransiencyMonitor() const { return _popoverTransiencyMonitor.get(); }
  void setPopoverTransiencyMonitor(std::unique_ptr<EventMonitor> monitor);
  bool popoverShouldDetach(Popover *popover) override;
  void popoverDidShow() override;
  void popoverWillClose() override;

  /// Shows what the program is and what it stands on.
  void showInfo();
  /// Opens the project's page in the browser.
  void visitWebSite();

  // The saved data: a store of objects that comes into being when it is first asked for, and costs
  // nothing before. What cannot be set up is null after the person has been told why, and is tried anew
  // the next time.

  /// Made, when it is missing, as the store is set up.
  QString applicationDocumentsDirectory() const;
  ManagedObjectModel *managedObjectModel();
  PersistentStoreCoordinator *persistentStoreCoordinator();
  ManagedObjectContext *managedObjectContext();
  /// Commits what is being edited and saves. Failures are shown in dialogs, so not during a row action;
  /// nothing is lost by them.
  void saveAction();
  /// The context's own.
  QUndoStack *windowWillReturnUndoManager(const QWidget *window);
  /// Commits and saves a store that is in use, and asks the person when that fails.
  TerminateReply applicationShouldTerminate(Application &application);

  /// Puts the picture that suits the interface style and the screen on the status item.
  void darkModeAndRetina();

 signals:
  /// The process is to end now, in the middle of a row action whose wait never returns.
  void endsInRowAction();

 private:
  class RowAction;

  std::optional<Error> setUpStore();
  bool mayTerminate();
  void endIfAsked(const std::function<void()> &end);

  RowRecord recordOf(const QString &bsdName) const;
  void restoreRunAtLoad();
  void refreshListsOrLog();
  void explainEmptyList();
  void announce(const Notification &notification, QString (*message)(const QString &path));
  void complain(const QString &text);
  void report(const QString &text, const QString &detail);
  void notify(const QString &text);
  static QString whoHolds(const QStringList &processes);
  void warnUnwritten(const Notification &notification);
  void closeForActivityElsewhere();
  void dismissPopover();
  void explainMissingTray();
  void showBusyButtons();
  void mountOrUmount(const QString &title);
  void openEsp(const QString &title);
  void updateMenu();
  QStringList rowTitles() const;
  void chooseFromMenu(const QString &title);
  void tellUnlessSeen(const QString &text, const QString &detail = {});

  Platform &_platform;
  Desktop &_desktop;
  MainQueue _mainQueue;
  Application _application;
  /// From `closeApp` until `applicationShouldTerminate` is asked.
  bool _isAskedToEnd = false;
  /// While it is being asked.
  bool _isTerminating = false;

  qint64 _lastSelectedRow = -1;
  QVector<RowRecord> _tableViewContents;
  std::unique_ptr<StatusItem> topBarItem;
  bool _showAll = false;
  std::unique_ptr<PersistentStoreCoordinator> _persistentStoreCoordinator;
  std::unique_ptr<ManagedObjectModel> _managedObjectModel;
  std::unique_ptr<ManagedObjectContext> _managedObjectContext;
  std::unique_ptr<EventMonitor> _popoverTransiencyMonitor;

  QMenu *_menu = nullptr;
  QList<QAction *> _rowActions;  // in the menu, with what parts them from the last one
  /// Of what was chosen from the menu while the popover was closed.
  bool _outcomeIsAwaited = false;
  Popover *_popover = nullptr;
  TableView *_tableView = nullptr;
  TextField *_versionLabel = nullptr;
  CheckBox *_runAtLoadCheck = nullptr;
  CheckBox *_showAllDisksCheck = nullptr;
  TextField *_statusTextField = nullptr;
  CheckBox *_forceUmountCheck = nullptr;
  EmptyView *_emptyView = nullptr;
  Notice *_listNotice = nullptr;
  Notice *_trayNotice = nullptr;
  QWidget *_window = nullptr;
  InfoWindow *_infoWindow = nullptr;

  /// The partition whose row action is under way.
  std::optional<QString> _busyPartition;
  /// The partition that the next refusal is about, if it is in use.
  std::optional<QString> _volumeInUse;
};

// What the status item's picture depends on.

/// Whether this value of "AppleInterfaceStyle" asks for the dark one: the text "dark" in any mix of
/// capitals.
bool isDarkInterfaceStyle(const QVariant &style);

/// The side of the picture in points; a factor that is no number counts as 1.
int statusImageSide(qreal scaleFactor);
