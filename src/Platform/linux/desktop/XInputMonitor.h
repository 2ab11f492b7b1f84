#pragma once

// Watches presses and key releases that go to other programs on an X server, which shows them to
// whoever asks (the XInput extension's raw events).

#include <QSocketNotifier>
#include <functional>
#include <memory>

#include "Platform/Desktop.h"

struct xcb_connection_t;

class XInputMonitor final : public QObject, public EventMonitor {
 public:
  /// Null where there is no X server that can do it. A press is our own where `isOurPress`, asked
  /// at the time of the press, says so.
  static std::unique_ptr<XInputMonitor> make(std::function<void()> handler,
                                             std::function<bool()> isOurPress);

 private:
  struct Disconnect {
    void operator()(xcb_connection_t *server) const;
  };
  using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

  XInputMonitor(Connection server, quint8 opcode, std::function<void()> handler,
                std::function<bool()> isOurPress);
  void readEvents();
  bool goesElsewhere(const void *event) const;

  // A connection of its own, so that closing it ends everything that was asked for.
  Connection _server;
  quint8 _opcode;
  QSocketNotifier _readable;
  std::function<void()> _handler;
  std::function<bool()> _isOurPress;
};
