#pragma once

// Watches presses and key releases that go to other programs on an X server, which reports them to
// any client (the XInput extension's raw events).
//
// No protocol tells where on a panel the program's item is. So a press on a panel is held back until its
// release: the press was on the item if the panel then reports a click.

#include <QSocketNotifier>
#include <QTimer>
#include <functional>
#include <memory>

#include "Platform/Desktop.h"

struct xcb_connection_t;

class XInputMonitor final : public QObject, public EventMonitor {
 public:
  /// What a press is on.
  enum class On { Ours, Panel, Other };

  /// Null where the X server does not support this. `pressedOn` is called at the time of a press.
  static std::unique_ptr<XInputMonitor> make(std::function<void()> handler,
                                             std::function<On()> pressedOn);

  /// Reports that the press held back was on the item.
  void itemClicked();

 private:
  struct Disconnect {
    void operator()(xcb_connection_t *server) const;
  };
  using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

  XInputMonitor(Connection server, quint8 opcode, std::function<void()> handler,
                std::function<On()> pressedOn);
  void readEvents();
  void callHandler();
  bool goesElsewhere(const void *event);
  bool pressGoesElsewhere();
  void released();

  // A separate connection: closing it ends all event selections.
  Connection _server;
  quint8 _opcode;
  QSocketNotifier _readable;
  std::function<void()> _handler;
  std::function<On()> _pressedOn;
  bool _pressWaits = false;
  QTimer _patience;
};
