#include "desktop/qt/ColorScheme.h"

#include "desktop/qt/Appearance.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>

namespace quillon::desktop {

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kGroup = QStringLiteral("org.freedesktop.appearance");
const QString kKey = QStringLiteral("color-scheme");
/// 0 is no preference, 2 prefers light.
constexpr uint kPrefersDark = 1;

} // namespace

ColorScheme::ColorScheme(const QDBusConnection& bus)
    : m_bus(bus)
    , m_desktopPalette(QGuiApplication::palette()) {
    if (!m_bus.isConnected() || isDark(m_desktopPalette)) {
        return;
    }
    m_changed.setSingleShot(true);
    connect(&m_changed, &QTimer::timeout, this, [this] { ask(); });
    m_bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), {kGroup, kKey}, {},
                  &m_changed, SLOT(start()));
    ask();
}

void ColorScheme::ask() {
    auto question =
        QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
    question << kGroup << kKey;
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (!reply.isError()) {
            follow(reply.value().variant());
        }
        answer->deleteLater();
    });
}

void ColorScheme::follow(QVariant value) {
    // The portal's older question is answered with one wrapping more.
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    QGuiApplication::setPalette(value.toUInt() == kPrefersDark ? darkPalette(m_desktopPalette)
                                                               : m_desktopPalette);
}

QPalette ColorScheme::darkPalette(const QPalette& light) {
    const QColor window(43, 43, 46);
    const QColor base(30, 30, 33);
    const QColor text(240, 240, 242);
    const QColor dimmedText(240, 240, 242, 110);

    QPalette dark(light);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::BrightText}) {
        dark.setColor(QPalette::All, role, text);
        dark.setColor(QPalette::Disabled, role, dimmedText);
    }
    dark.setColor(QPalette::All, QPalette::PlaceholderText, dimmedText);
    dark.setColor(QPalette::All, QPalette::Window, window);
    dark.setColor(QPalette::All, QPalette::Base, base);
    dark.setColor(QPalette::All, QPalette::AlternateBase, window);
    dark.setColor(QPalette::All, QPalette::ToolTipBase, window);
    dark.setColor(QPalette::All, QPalette::Button, QColor(62, 62, 66));
    dark.setColor(QPalette::All, QPalette::Light, QColor(80, 80, 84));
    dark.setColor(QPalette::All, QPalette::Midlight, QColor(70, 70, 74));
    dark.setColor(QPalette::All, QPalette::Mid, QColor(50, 50, 54));
    dark.setColor(QPalette::All, QPalette::Dark, QColor(28, 28, 30));
    dark.setColor(QPalette::All, QPalette::Shadow, Qt::black);
    dark.setColor(QPalette::All, QPalette::Link, QColor(106, 176, 255));
    return dark;
}

} // namespace quillon::desktop
