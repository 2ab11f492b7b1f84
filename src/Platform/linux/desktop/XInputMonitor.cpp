#include "Platform/linux/desktop/XInputMonitor.h"

#include <xcb/xcb.h>
#include <xcb/xinput.h>

#include <QGuiApplication>

#include "Platform/linux/desktop/XcbReply.h"

namespace {

constexpr uint32_t kLeftButton = 1;
constexpr uint32_t kRightButton = 3;
// A panel reports a click within this time after the release of the button.
constexpr std::chrono::milliseconds kPanelsTime(250);

// The opcode of the extension's events; 0 where the server lacks the extension or has an old
// version.
quint8 opcodeOf(xcb_connection_t *server) {
  const xcb_query_extension_reply_t *extension = xcb_get_extension_data(server, &xcb_input_id);
  if (!extension || !extension->present) return 0;
  const XcbReply<xcb_input_xi_query_version_reply_t> version(
      xcb_input_xi_query_version_reply(server, xcb_input_xi_query_version(server, 2, 2), nullptr));
  const bool isNew = version && (version->major_version > 2 ||
                                 (version->major_version == 2 && version->minor_version >= 2));
  return isNew ? extension->major_opcode : 0;
}

void selectRawEvents(xcb_connection_t *server) {
  struct {
    xcb_input_event_mask_t head;
    uint32_t mask;
  } const selection = {{XCB_INPUT_DEVICE_ALL_MASTER, 1},
                       XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS |
                           XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE |
                           XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE};
  for (auto screen = xcb_setup_roots_iterator(xcb_get_setup(server)); screen.rem > 0;
       xcb_screen_next(&screen)) {
    xcb_input_xi_select_events(server, screen.data->root, 1, &selection.head);
  }
  xcb_flush(server);
}

}  // namespace

void XInputMonitor::Disconnect::operator()(xcb_connection_t *server) const {
  xcb_disconnect(server);
}

std::unique_ptr<XInputMonitor> XInputMonitor::make(std::function<void()> handler,
                                                   std::function<On()> pressedOn) {
  Connection server(xcb_connect(nullptr, nullptr));
  if (xcb_connection_has_error(server.get())) return nullptr;
  const quint8 opcode = opcodeOf(server.get());
  if (opcode == 0) return nullptr;
  selectRawEvents(server.get());
  return std::unique_ptr<XInputMonitor>(
      new XInputMonitor(std::move(server), opcode, std::move(handler), std::move(pressedOn)));
}

XInputMonitor::XInputMonitor(Connection server, quint8 opcode, std::function<void()> handler,
                             std::function<On()> pressedOn)
    : _server(std::move(server)),
      _opcode(opcode),
      _readable(xcb_get_file_descriptor(_server.get()), QSocketNotifier::Read),
      _handler(std::move(handler)),
      _pressedOn(std::move(pressedOn)) {
  _patience.setSingleShot(true);
  _patience.setInterval(kPanelsTime);
  connect(&_patience, &QTimer::timeout, this, &XInputMonitor::callHandler);
  connect(&_readable, &QSocketNotifier::activated, this, &XInputMonitor::readEvents);
  // Events that came with the replies above are buffered already and do not activate the notifier.
  QMetaObject::invokeMethod(this, &XInputMonitor::readEvents, Qt::QueuedConnection);
}

void XInputMonitor::readEvents() {
  bool heard = false;
  while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(_server.get())}) {
    heard = goesElsewhere(event.get()) || heard;
  }
  if (xcb_connection_has_error(_server.get())) _readable.setEnabled(false);
  if (heard) callHandler();
}

void XInputMonitor::callHandler() {
  // A copy, because the handler may destroy this monitor.
  const auto handler = _handler;
  handler();
}

bool XInputMonitor::goesElsewhere(const void *event) {
  const auto *generic = static_cast<const xcb_ge_generic_event_t *>(event);
  const bool isInput =
      (generic->response_type & 0x7f) == XCB_GE_GENERIC && generic->extension == _opcode;
  if (!isInput) return false;
  if (generic->event_type == XCB_INPUT_RAW_KEY_RELEASE) return !QGuiApplication::focusWindow();
  // Presses and releases have the same structure.
  const uint32_t button = static_cast<const xcb_input_raw_button_press_event_t *>(event)->detail;
  if (button != kLeftButton && button != kRightButton) return false;
  if (generic->event_type == XCB_INPUT_RAW_BUTTON_PRESS) return pressGoesElsewhere();
  if (generic->event_type == XCB_INPUT_RAW_BUTTON_RELEASE) released();
  return false;
}

bool XInputMonitor::pressGoesElsewhere() {
  _patience.stop();
  const On on = _pressedOn();
  _pressWaits = on == On::Panel;
  return on == On::Other;
}

void XInputMonitor::released() {
  if (std::exchange(_pressWaits, false)) _patience.start();
}

void XInputMonitor::itemClicked() {
  _pressWaits = false;
  _patience.stop();
}
