#include "Platform/linux/desktop/XcbWindows.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QWidget>
#include <array>

#include "Platform/linux/desktop/XcbReply.h"

namespace {

// Null on every other window system. The offscreen platform has the interface, but no connection.
xcb_connection_t *connection() {
  const auto *application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return application ? application->connection() : nullptr;
}

bool hasCompositor(xcb_connection_t *server) {
  const auto cookie = xcb_get_selection_owner(server, atom(server, "_NET_WM_CM_S0"));
  const XcbReply<xcb_get_selection_owner_reply_t> reply(
      xcb_get_selection_owner_reply(server, cookie, nullptr));
  return reply && reply->owner != XCB_WINDOW_NONE;
}

}  // namespace

WindowAbilities windowAbilitiesNow() {
  if (xcb_connection_t *server = connection()) {
    const bool isComposited = hasCompositor(server);
    // sway puts a floating window in the middle of the screen, whatever place it asks for.
    return {isComposited, qEnvironmentVariableIsEmpty("SWAYSOCK"), isComposited};
  }
  return {true, !QGuiApplication::platformName().startsWith(QLatin1String("wayland")), false};
}

void keepOutOfXcbTaskbar(const QWidget &window) {
  xcb_connection_t *server = connection();
  if (!server) return;
  const std::array<xcb_atom_t, 2> states = {atom(server, "_NET_WM_STATE_SKIP_TASKBAR"),
                                            atom(server, "_NET_WM_STATE_SKIP_PAGER")};
  xcb_change_property(server, XCB_PROP_MODE_APPEND, static_cast<xcb_window_t>(window.winId()),
                      atom(server, "_NET_WM_STATE"), XCB_ATOM_ATOM, 32,
                      static_cast<uint32_t>(states.size()), states.data());
}
