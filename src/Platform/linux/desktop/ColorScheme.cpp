#include "Platform/linux/desktop/ColorScheme.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

using namespace Qt::StringLiterals;

namespace {

const QString kPortal = u"org.freedesktop.portal.Desktop"_s;
const QString kPath = u"/org/freedesktop/portal/desktop"_s;
const QString kSettings = u"org.freedesktop.portal.Settings"_s;
const QString kGroup = u"org.freedesktop.appearance"_s;
const QString kKey = u"color-scheme"_s;

// A reply wraps the value twice, a signal once.
QVariant unwrapped(const QVariant &value) {
  return value.canConvert<QDBusVariant>() ? unwrapped(value.value<QDBusVariant>().variant())
                                          : value;
}

}  // namespace

ColorScheme::ColorScheme(const QDBusConnection &bus)
    : _bus(bus), _portal(kPortal, _bus, QDBusServiceWatcher::WatchForRegistration) {
  connect(&_portal, &QDBusServiceWatcher::serviceRegistered, this, &ColorScheme::ask);
  _bus.connect(kPortal, kPath, kSettings, u"SettingChanged"_s, this,
               SLOT(settingChanged(QDBusMessage)));
  ask();
}

void ColorScheme::ask() {
  auto question = QDBusMessage::createMethodCall(kPortal, kPath, kSettings, u"Read"_s);
  question << kGroup << kKey;
  auto *call = new QDBusPendingCallWatcher(_bus.asyncCall(question), this);
  connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
    call->deleteLater();
    const QDBusPendingReply<QDBusVariant> reply = *call;
    if (!reply.isError()) take(reply.value().variant());
  });
}

// The whole message: Qt 6.4 refuses to connect a slot that takes the value by itself.
void ColorScheme::settingChanged(const QDBusMessage &change) {
  const QVariantList arguments = change.arguments();
  if (arguments.size() == 3 && arguments[0] == kGroup && arguments[1] == kKey) take(arguments[2]);
}

void ColorScheme::take(const QVariant &value) {
  const auto number = static_cast<Preference>(unwrapped(value).toUInt());
  const bool isKnown = number == Preference::Dark || number == Preference::Light;
  const Preference preference = isKnown ? number : Preference::None;
  if (std::exchange(_preference, preference) != preference) emit changed();
}
