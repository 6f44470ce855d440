#include "desktop/frame/colour_scheme.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileInfo>
#include <QPalette>
#include <QStyle>

namespace velk {
namespace {

constexpr const char* kService = "org.freedesktop.portal.Desktop";
constexpr const char* kPath = "/org/freedesktop/portal/desktop";
constexpr const char* kInterface = "org.freedesktop.portal.Settings";
constexpr const char* kGroup = "org.freedesktop.appearance";
constexpr const char* kKey = "color-scheme";
constexpr uint kPrefersDark = 1;

// Qt's own style with its own colours: nobody else has chosen any.
bool ColoursAreFree() {
  const QStyle& style = *QApplication::style();
  return style.name() == QLatin1String("fusion") && QApplication::palette() == style.standardPalette();
}

// Looked for first, since asking Qt for the bus where there is none may start one.
bool HasSessionBus() {
  return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
         QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

QPalette DarkPalette() {
  const QColor text(0xe4e6ea);
  const QColor faint(0x84878d);
  const QColor window(0x2f3136);
  const QColor base(0x1c1e21);
  QPalette palette(text, window, QColor(0x55585f), QColor(0x17181b), QColor(0x3b3e44), text, Qt::white, base,
                   window);
  palette.setColor(QPalette::Button, QColor(0x3a3d43));
  palette.setColor(QPalette::AlternateBase, QColor(0x25272b));
  palette.setColor(QPalette::Midlight, QColor(0x484b52));
  palette.setColor(QPalette::Shadow, Qt::black);
  palette.setColor(QPalette::ToolTipBase, QColor(0x3a3d43));
  palette.setColor(QPalette::ToolTipText, text);
  palette.setColor(QPalette::PlaceholderText, faint);
  palette.setColor(QPalette::Highlight, QColor(0x2f6fb5));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(0x6cb2f5));
  palette.setColor(QPalette::LinkVisited, QColor(0xb99af0));
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, faint);
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x4a4d54));
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, faint);
  return palette;
}

// The value may stand in variants of its own.
void Use(QVariant value) {
  while (value.metaType() == QMetaType::fromType<QDBusVariant>())
    value = value.value<QDBusVariant>().variant();
  QApplication::setPalette(value.toUInt() == kPrefersDark ? DarkPalette() : QPalette());
}

}  // namespace

ColourScheme::ColourScheme(QObject* parent) : QObject(parent) {
  if (!ColoursAreFree() || !HasSessionBus()) return;
  QDBusConnection bus = QDBusConnection::sessionBus();
  bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
              SLOT(settingChanged(QDBusMessage)));
  QDBusMessage question = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
  question << QString::fromLatin1(kGroup) << QString::fromLatin1(kKey);
  question_ = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
  connect(question_, &QDBusPendingCallWatcher::finished, this, &ColourScheme::takeAnswer);
}

void ColourScheme::takeAnswer() {
  if (!question_ || !question_->isFinished()) return;
  const QDBusPendingReply<QDBusVariant> reply = *question_;
  if (reply.isValid()) Use(QVariant::fromValue(reply.value()));
  question_->deleteLater();
  question_ = nullptr;
}

// Group, key and value.
void ColourScheme::settingChanged(const QDBusMessage& message) {
  const QVariantList parts = message.arguments();
  if (parts.size() == 3 && parts[0].toString() == QLatin1String(kGroup) &&
      parts[1].toString() == QLatin1String(kKey)) {
    Use(parts[2]);
  }
}

}  // namespace velk
