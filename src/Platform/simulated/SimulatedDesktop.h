#pragma once

// An invisible desktop: it records the program's calls and makes events on command.
//
//   SimulatedDesktop desktop;
//   AppDelegate delegate(platform, desktop);
//   desktop.clickItem();

#include <QIcon>
#include <QMenu>
#include <QPointer>
#include <QStringList>

#include "Platform/Desktop.h"

class SimulatedTrayItem final : public TrayItem {
 public:
  void setImage(const QIcon &image) override { shownImage = image; }
  void setHighlighted(bool highlighted) override { isHighlighted = highlighted; }
  void setMenu(QMenu *menu) override { shownMenu = menu; }
  QRect place() const override { return shownAt; }
  bool isShown() const override { return hasTray; }
  QString kind() const override { return QStringLiteral("simulated"); }
  void showMessage(const QString & /*title*/, const QString & /*text*/) override {}

  QIcon shownImage;
  bool isHighlighted = false;
  bool hasTray = true;
  QPointer<QMenu> shownMenu;
  QRect shownAt{400, 0, 24, 24};
};

class SimulatedDesktop final : public Desktop {
 public:
  std::unique_ptr<TrayItem> makeTrayItem() override;
  std::unique_ptr<EventMonitor> addGlobalMonitor(std::function<void()> handler) override;
  void notify(const QString &title, const QString &text, TrayItem &item) override;
  QVariant interfaceStyle() const override { return style; }
  Facts facts() const override { return {{QStringLiteral("Tray"), QStringLiteral("simulated")}}; }
  bool becomeOnlyInstance() override { return true; }
  bool wasStartedAtLogin() const override { return startedAtLogin; }
  QString adviceWithoutTray() const override { return QStringLiteral("Get a tray."); }
  WindowAbilities windowAbilities() const override { return {true, true, false}; }

  // Events on the desktop.
  void clickItem() { emit item->activated(); }
  void actElsewhere();

  QPointer<SimulatedTrayItem> item;  // the last one made
  QVariant style;
  bool hasTray = true;  // for later items
  bool startedAtLogin = false;
  int monitors = 0;  // that exist now
  QStringList notifications;

 private:
  class Monitor;

  std::function<void()> _handler;  // of the last monitor; empty after its destruction
};
