#include "Platform/linux/desktop/ColorScheme.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString kPortal = u"org.freedesktop.portal.Desktop"_s;
const QString kPath = u"/org/freedesktop/portal/desktop"_s;
const QString kSettings = u"org.freedesktop.portal.Settings"_s;
const QString kGroup = u"org.freedesktop.appearance"_s;
const QString kScheme = u"color-scheme"_s;
const QString kAccent = u"accent-color"_s;

// A reply wraps the value twice, a signal once.
QVariant unwrapped(const QVariant &value) {
  return value.canConvert<QDBusVariant>() ? unwrapped(value.value<QDBusVariant>().variant())
                                          : value;
}

ColorScheme::Preference preferenceOf(const QVariant &value) {
  const auto number = static_cast<ColorScheme::Preference>(value.toUInt());
  const bool isKnown =
      number == ColorScheme::Preference::Dark || number == ColorScheme::Preference::Light;
  return isKnown ? number : ColorScheme::Preference::None;
}

// Red, green and blue from 0 to 1; other values mean that there is no colour.
std::optional<QColor> colorOf(const QVariant &value) {
  if (!value.canConvert<QDBusArgument>()) return std::nullopt;
  const auto argument = value.value<QDBusArgument>();
  if (argument.currentSignature() != "(ddd)"_L1) return std::nullopt;
  double parts[3] = {};
  argument.beginStructure();
  argument >> parts[0] >> parts[1] >> parts[2];
  argument.endStructure();
  const bool isColor = std::all_of(std::begin(parts), std::end(parts),
                                   [](double part) { return part >= 0 && part <= 1; });
  if (!isColor) return std::nullopt;
  return QColor::fromRgbF(static_cast<float>(parts[0]), static_cast<float>(parts[1]),
                          static_cast<float>(parts[2]));
}

}  // namespace

ColorScheme::ColorScheme(MessageBus &bus) : _bus(bus) {
  _portal.setWatchMode(QDBusServiceWatcher::WatchForRegistration);
  _portal.addWatchedService(kPortal);
  connect(&_portal, &QDBusServiceWatcher::serviceRegistered, this, &ColorScheme::ask);
  connect(&_bus, &MessageBus::connected, this, &ColorScheme::start);
}

void ColorScheme::start() {
  QDBusConnection bus = _bus.connection();
  _portal.setConnection(bus);
  bus.connect(kPortal, kPath, kSettings, u"SettingChanged"_s, this,
              SLOT(settingChanged(QDBusMessage)));
  ask();
}

void ColorScheme::ask() {
  askFor(kScheme);
  askFor(kAccent);
}

void ColorScheme::askFor(const QString &key) {
  auto question = QDBusMessage::createMethodCall(kPortal, kPath, kSettings, u"Read"_s);
  question << kGroup << key;
  auto *call = new QDBusPendingCallWatcher(_bus.connection().asyncCall(question), this);
  connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, key] {
    call->deleteLater();
    const QDBusPendingReply<QDBusVariant> reply = *call;
    if (!reply.isError()) take(key, reply.value().variant());
  });
}

// Takes the whole message, because Qt 6.4 cannot connect a slot that takes the value itself.
void ColorScheme::settingChanged(const QDBusMessage &change) {
  const QVariantList arguments = change.arguments();
  if (arguments.size() == 3 && arguments[0] == kGroup) take(arguments[1].toString(), arguments[2]);
}

void ColorScheme::take(const QString &key, const QVariant &value) {
  if (key == kScheme) {
    const Preference preference = preferenceOf(unwrapped(value));
    if (std::exchange(_preference, preference) != preference) emit changed();
  } else if (key == kAccent) {
    const std::optional<QColor> accent = colorOf(unwrapped(value));
    if (std::exchange(_accent, accent) != accent) emit changed();
  }
}

#include "moc_ColorScheme.cpp"
