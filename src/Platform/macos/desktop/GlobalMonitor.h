#pragma once

#include "Platform/Desktop.h"

/// The system's monitor of events in other applications. Null when the system makes none. It
/// reports key releases only if the user has allowed that ("Accessibility").
std::unique_ptr<EventMonitor> makeGlobalMonitor(std::function<void()> handler);
