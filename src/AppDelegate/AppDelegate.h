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
  /// Both must outlive the delegate, and `platform` must be `Platform::current()`.
  AppDelegate(Platform &platform, Desktop &desktop);
  ~AppDelegate() override;

  // The outlets: objects of the interface, which owns them. All are connected before start-up. The
  // delegate's destructor does not touch them.
  /// The rows' actions are inserted before the menu's last action.
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
  /// What is shown in place of the table while it has no rows.
  EmptyView *emptyView() const { return _emptyView; }
  void setEmptyView(EmptyView *view) { _emptyView = view; }
  /// Says that the list is not complete, until a refresh succeeds.
  void setListNotice(Notice *notice) { _listNotice = notice; }
  /// Says that there is no tray and what to do, while the popover is open for that reason.
  void setTrayNotice(Notice *notice) { _trayNotice = notice; }

  // Start-up and termination.
  void applicationDidFinishLaunching();
  /// Called by the Quit button and by every other request to quit. The program quits from the event
  /// loop, unless `applicationShouldTerminate` refuses. During a row action, that question waits until
  /// the action is over, five seconds at most. While the question is open, a further call does not ask
  /// it again.
  void closeApp();
  /// Whether the user's session, and the program with it, may end. `mayAsk` tells whether dialogs may
  /// be shown; it is called only when there may be something to ask. Without dialogs, unsaved changes
  /// are saved; if that fails, the answer is false.
  bool sessionMayEnd(const std::function<bool()> &mayAsk);

  // The partition list.

  /// Rebuilds the list from nothing and makes the table show it. Throws std::invalid_argument when
  /// a record lacks a value; the rows before it stay, and the table is not told.
  void refreshLists();
  const QVector<RowRecord> &tableViewContents() const { return _tableViewContents; }
  /// Index of the row that was last selected, -1 for none. A refresh leaves it as it was.
  qint64 lastSelectedRow() const { return _lastSelectedRow; }

  // What the table asks for.
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
  // agreement.
  void runAtLoad(CheckBox *sender);
  /// Whether this program has a login item.
  bool isLaunchAtStartup() const;
  /// Adds the item when there is none, removes it when there is one. Failures are silent.
  void toggleLaunchAtStartup();
  /// The first item that starts this program.
  std::optional<LoginItems::Item> itemRefInLoginItems() const;

  // What the platform and `DiskArbitrator` announce.
  void addRefreshObserver();
  void mounted(const Notification &notification);
  void umounted(const Notification &notification);
  void renamed(const Notification &notification);
  void arbitrator(const Notification &notification);
  void stopRunning();

  // The popover.

  /// Opens the popover, or moves it to where the status item is now.
  void showPopover();
  /// Watches for activity in other programs, which closes the popover. Null for none. It may exist
  /// longer than the popover is open.
  EventMonitor *popoverTransiencyMonitor() const { return _popoverTransiencyMonitor.get(); }
  void setPopoverTransiencyMonitor(std::unique_ptr<EventMonitor> monitor);
  bool popoverShouldDetach(Popover *popover) override;
  void popoverDidShow() override;
  void popoverWillClose() override;

  /// Shows the program's version and what the program runs on.
  void showInfo();
  /// Opens the project's page in the browser.
  void visitWebSite();

  // The saved data: a store of objects that is built when it is first asked for. When a part cannot be
  // built, a dialog says why, the getter returns null, and the next call tries again.

  /// The store's folder. Setting up the store creates it when it is missing.
  QString applicationDocumentsDirectory() const;
  ManagedObjectModel *managedObjectModel();
  PersistentStoreCoordinator *persistentStoreCoordinator();
  ManagedObjectContext *managedObjectContext();
  /// Commits what is being edited and saves. Failures are shown in dialogs, so do not call it during a
  /// row action. A failure loses no changes.
  void saveAction();
  /// The undo stack of the managed object context.
  QUndoStack *windowWillReturnUndoManager(const QWidget *window);
  /// Commits and saves a store that is in use, and asks the person when that fails.
  TerminateReply applicationShouldTerminate(Application &application);

  /// Puts the picture that suits the interface style and the screen on the status item.
  void darkModeAndRetina();

 signals:
  /// The process must exit now, in the middle of a row action whose wait never returns.
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
  /// True from `closeApp` until `applicationShouldTerminate` is called.
  bool _isAskedToEnd = false;
  /// True while `applicationShouldTerminate` runs.
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
  QList<QAction *> _rowActions;  // in the menu, with the separator after them
  /// Whether the outcome of a choice from the menu, made while the popover was closed, is still
  /// due.
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
  /// The partition that the next refusal concerns, if it is in use.
  std::optional<QString> _volumeInUse;
};

// What the status item's picture depends on.

/// Whether this value of "AppleInterfaceStyle" asks for the dark style: the text "dark" in any mix
/// of capitals.
bool isDarkInterfaceStyle(const QVariant &style);

/// The side of the picture in points; a factor that is not a number counts as 1.
int statusImageSide(qreal scaleFactor);
