#pragma once

// Calls its handler when another program becomes active: a substitute for a monitor of other
// programs' events, where the desktop does not report these.

#include <QGuiApplication>

#include "Platform/Desktop.h"

class ActivationMonitor final : public QObject, public EventMonitor {
 public:
  explicit ActivationMonitor(const std::function<void()> &handler) {
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [handler = handler](Qt::ApplicationState state) {
              // A copy, because the handler may destroy this monitor and what it captured.
              const auto call = handler;
              if (state != Qt::ApplicationActive) call();
            });
  }
};
