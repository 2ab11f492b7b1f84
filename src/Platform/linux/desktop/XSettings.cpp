#include "Platform/linux/desktop/XSettings.h"

#include <xcb/xcb.h>

#include <QRegularExpression>
#include <QtEndian>
#include <utility>

#include "Platform/linux/desktop/XcbReply.h"

using namespace Qt::StringLiterals;

namespace {

// Far more than any desktop has.
constexpr uint32_t kMostWords = 1U << 16;

void listenTo(xcb_connection_t *server, xcb_window_t window) {
  const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
  xcb_change_window_attributes(server, window, XCB_CW_EVENT_MASK, &events);
}

xcb_window_t rootOf(xcb_connection_t *server) {
  return xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
}

// Reads numbers and texts in sequence. Reading past the end sets `isGood` to false; all later values are empty.
class Reader {
 public:
  explicit Reader(const QByteArray &bytes) : _bytes(bytes), _isBigEndian(bytes.startsWith('\1')) {}

  bool isGood() const { return _isGood; }

  template <typename Number>
  Number number() {
    const QByteArray bytes = take(sizeof(Number));
    if (!_isGood) return 0;
    return _isBigEndian ? qFromBigEndian<Number>(bytes.constData())
                        : qFromLittleEndian<Number>(bytes.constData());
  }

  // Texts are padded to a multiple of four bytes.
  QByteArray text(qsizetype length) {
    const QByteArray text = take(length);
    take((4 - length % 4) % 4);
    return text;
  }

  QByteArray take(qsizetype length) {
    _isGood = _isGood && length <= _bytes.size() - _position;
    if (!_isGood) return {};
    const QByteArray taken = _bytes.mid(_position, length);
    _position += length;
    return taken;
  }

 private:
  QByteArray _bytes;
  qsizetype _position = 0;
  bool _isBigEndian;
  bool _isGood = true;
};

}  // namespace

QHash<QByteArray, QString> textSettings(const QByteArray &property) {
  enum Kind : quint8 { Integer = 0, Text = 1, Color = 2 };
  QHash<QByteArray, QString> settings;
  Reader reader(property);
  reader.take(8);  // byte order and serial number
  for (quint32 left = reader.number<quint32>(); left > 0 && reader.isGood(); --left) {
    const auto kind = reader.number<quint8>();
    reader.take(1);
    const QByteArray name = reader.text(reader.number<quint16>());
    reader.take(4);  // serial number
    if (kind == Integer) {
      reader.take(4);
    } else if (kind == Color) {
      reader.take(8);
    } else if (kind == Text) {
      const QByteArray value = reader.text(reader.number<quint32>());
      if (reader.isGood()) settings[name] = QString::fromUtf8(value);
    } else {
      break;  // the length of an unknown kind is unknown
    }
  }
  return settings;
}

bool isDarkThemeName(const QString &name) {
  // Not "darker": "Arc-Darker" has light windows.
  static const QRegularExpression dark(u"(dark|black|inverse|night)(?!er)"_s,
                                       QRegularExpression::CaseInsensitiveOption);
  return dark.match(name).hasMatch();
}

void XSettings::Disconnect::operator()(xcb_connection_t *server) const {
  xcb_disconnect(server);
}

XSettings::XSettings() : _server(xcb_connect(nullptr, nullptr)) {
  if (xcb_connection_has_error(_server.get())) return;
  // A new owner of the settings announces itself through the root window.
  listenTo(_server.get(), rootOf(_server.get()));
  _readable = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(_server.get()),
                                                QSocketNotifier::Read);
  connect(_readable.get(), &QSocketNotifier::activated, this, &XSettings::readEvents);
  readSettings();
}

void XSettings::readEvents() {
  bool matters = false;
  while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(_server.get())}) {
    const auto kind = event->response_type & 0x7f;
    matters = matters || kind == XCB_CLIENT_MESSAGE || kind == XCB_DESTROY_NOTIFY ||
              (kind == XCB_PROPERTY_NOTIFY &&
               reinterpret_cast<const xcb_property_notify_event_t *>(event.get())->window !=
                   rootOf(_server.get()));
  }
  if (xcb_connection_has_error(_server.get())) {
    _readable->setEnabled(false);
  } else if (matters) {
    readSettings();
  }
}

void XSettings::readSettings() {
  xcb_connection_t *server = _server.get();
  const auto ownerCookie = xcb_get_selection_owner(server, atom(server, "_XSETTINGS_S0"));
  const XcbReply<xcb_get_selection_owner_reply_t> owner(
      xcb_get_selection_owner_reply(server, ownerCookie, nullptr));
  if (!owner || owner->owner == XCB_WINDOW_NONE) return;
  listenTo(server, owner->owner);
  const auto cookie =
      xcb_get_property(server, false, owner->owner, atom(server, "_XSETTINGS_SETTINGS"),
                       XCB_ATOM_ANY, 0, kMostWords);
  const XcbReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(server, cookie, nullptr));
  if (!reply) return;
  const QByteArray property(static_cast<const char *>(xcb_get_property_value(reply.get())),
                            xcb_get_property_value_length(reply.get()));
  const QString themeName = textSettings(property).value("Net/ThemeName");
  if (std::exchange(_themeName, themeName) != themeName) emit changed();
}

#include "moc_XSettings.cpp"
