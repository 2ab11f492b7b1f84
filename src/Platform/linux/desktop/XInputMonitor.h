#pragma once

// Watches presses and key releases that go to other programs on an X server, which shows them to
// whoever asks (the XInput extension's raw events).
//
// Nobody tells where on a panel our item is. A press on a panel waits, therefore: if the panel says that
// it was on the item, it was ours.

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

  /// Null where there is no X server that can do it. `pressedOn` is asked at the time of a press.
  static std::unique_ptr<XInputMonitor> make(std::function<void()> handler,
                                             std::function<On()> pressedOn);

  /// The press that waits was on our item.
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

  // A connection of its own, so that closing it ends everything that was asked for.
  Connection _server;
  quint8 _opcode;
  QSocketNotifier _readable;
  std::function<void()> _handler;
  std::function<On()> _pressedOn;
  bool _pressWaits = false;
  QTimer _patience;
};
